// Resbuf chains: allocation, release, building from arguments.
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "adslib.h"
#include "devhost/core/drawing/dxf_groups.h"

namespace {

// The kind of value of a type code. RT codes and DXF group codes both appear in lists.
enum class ValueKind { Nothing, Short, Long, Real, Point, String, Name };

ValueKind ValueKindOf(int type) {
  switch (type) {
    case RTSHORT:
      return ValueKind::Short;
    case RTLONG:
      return ValueKind::Long;
    case RTREAL:
    case RTANG:
    case RTORINT:
      return ValueKind::Real;
    case RTPOINT:
    case RT3DPOINT:
      return ValueKind::Point;
    case RTSTR:
      return ValueKind::String;
    case RTENAME:
    case RTPICKS:
      return ValueKind::Name;
    default:
      break;
  }
  if (type >= 5000 || type == -4) return type == -4 ? ValueKind::String : ValueKind::Nothing;
  using devhost::GroupKind;
  switch (devhost::KindOfGroup(type)) {
    case GroupKind::String:
      return ValueKind::String;
    case GroupKind::Point:
      return ValueKind::Point;
    case GroupKind::Real:
      return ValueKind::Real;
    case GroupKind::Short:
      return ValueKind::Short;
    case GroupKind::Long:
      return ValueKind::Long;
    case GroupKind::None:
      break;
  }
  return ValueKind::Nothing;
}

ACHAR* Copy(const ACHAR* text) {
  const std::size_t size = (std::wcslen(text) + 1) * sizeof(ACHAR);
  ACHAR* copy = static_cast<ACHAR*>(std::malloc(size));
  if (copy) std::memcpy(copy, text, size);
  return copy;
}

// Reads the argument for the type of a node.
void SetValue(resbuf* node, va_list* args) {
  switch (ValueKindOf(node->restype)) {
    case ValueKind::Short:
      node->resval.rint = static_cast<short>(va_arg(*args, int));
      break;
    case ValueKind::Long:
      node->resval.rlong = va_arg(*args, int);
      break;
    case ValueKind::Real:
      node->resval.rreal = va_arg(*args, double);
      break;
    case ValueKind::Point:
      std::memcpy(node->resval.rpoint, va_arg(*args, double*), sizeof(ads_point));
      break;
    case ValueKind::String: {
      const ACHAR* text = va_arg(*args, const ACHAR*);
      node->resval.rstring = Copy(text ? text : L"");
      break;
    }
    case ValueKind::Name:
      std::memcpy(node->resval.rlname, va_arg(*args, long long*), sizeof(ads_name));
      break;
    case ValueKind::Nothing:
      break;
  }
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
    if (ValueKindOf(chain->restype) == ValueKind::String) std::free(chain->resval.rstring);
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
  // 0 ends the list, except as its first code, where it is the group of an entity's type.
  for (bool first = true; type != RTNONE && !(type == 0 && !first); first = false) {
    // Inside a list, RTDXF0 means group 0.
    if (type == RTDXF0) type = 0;
    resbuf* node = acutNewRb(type);
    if (!node) break;
    *tail = node;
    tail = &node->rbnext;
    SetValue(node, &args);
    type = va_arg(args, int);
  }
  va_end(args);
  return head;
}
