// Resbuf chains of the published interface: making, releasing, building from arguments.
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "adslib.h"
#include "devhost/core/drawing/dxf_groups.h"

namespace {

// What a type code holds; both the RT codes and DXF group codes appear in lists.
enum class Holds { Nothing, Short, Long, Real, Point, String, Name };

Holds WhatHolds(int type) {
  switch (type) {
    case RTSHORT:
      return Holds::Short;
    case RTLONG:
      return Holds::Long;
    case RTREAL:
    case RTANG:
    case RTORINT:
      return Holds::Real;
    case RTPOINT:
    case RT3DPOINT:
      return Holds::Point;
    case RTSTR:
      return Holds::String;
    case RTENAME:
    case RTPICKS:
      return Holds::Name;
    default:
      break;
  }
  if (type >= 5000 || type == -4) return type == -4 ? Holds::String : Holds::Nothing;
  using devhost::GroupKind;
  switch (devhost::KindOfGroup(type)) {
    case GroupKind::String:
      return Holds::String;
    case GroupKind::Point:
      return Holds::Point;
    case GroupKind::Real:
      return Holds::Real;
    case GroupKind::Short:
      return Holds::Short;
    case GroupKind::Long:
      return Holds::Long;
    case GroupKind::None:
      break;
  }
  return Holds::Nothing;
}

ACHAR* Copy(const ACHAR* text) {
  const std::size_t size = (std::wcslen(text) + 1) * sizeof(ACHAR);
  ACHAR* copy = static_cast<ACHAR*>(std::malloc(size));
  if (copy) std::memcpy(copy, text, size);
  return copy;
}

}  // namespace

resbuf* acutNewRb(int type) {
  resbuf* node = static_cast<resbuf*>(std::calloc(1, sizeof(resbuf)));
  if (node) node->restype = static_cast<short>(type);
  return node;
}

int acutRelRb(resbuf* chain) {
  if (!chain) return RTERROR;
  while (chain) {
    resbuf* next = chain->rbnext;
    if (WhatHolds(chain->restype) == Holds::String) std::free(chain->resval.rstring);
    std::free(chain);
    chain = next;
  }
  return RTNORM;
}

int acutNewString(const ACHAR* text, ACHAR*& copy) {
  copy = text ? Copy(text) : nullptr;
  return copy ? RTNORM : RTERROR;
}

void acutDelString(ACHAR*& text) {
  std::free(text);
  text = nullptr;
}

resbuf* acutBuildList(int type, ...) {
  va_list args;
  va_start(args, type);
  resbuf* head = nullptr;
  resbuf** tail = &head;
  // 0 ends a list except at its start, where it is the group of an entity's type.
  for (bool first = true; type != RTNONE && !(type == 0 && !first); first = false) {
    // Group 0 in the middle of a list has a code of its own there, and is group 0 in the chain.
    if (type == RTDXF0) type = 0;
    resbuf* node = acutNewRb(type);
    if (!node) break;
    *tail = node;
    tail = &node->rbnext;
    switch (WhatHolds(type)) {
      case Holds::Short:
        node->resval.rint = static_cast<short>(va_arg(args, int));
        break;
      case Holds::Long:
        node->resval.rlong = va_arg(args, int);
        break;
      case Holds::Real:
        node->resval.rreal = va_arg(args, double);
        break;
      case Holds::Point:
        std::memcpy(node->resval.rpoint, va_arg(args, double*), sizeof(ads_point));
        break;
      case Holds::String: {
        const ACHAR* text = va_arg(args, const ACHAR*);
        node->resval.rstring = Copy(text ? text : L"");
        break;
      }
      case Holds::Name:
        std::memcpy(node->resval.rlname, va_arg(args, long long*), sizeof(ads_name));
        break;
      case Holds::Nothing:
        break;
    }
    type = va_arg(args, int);
  }
  va_end(args);
  return head;
}
