// See edge_drag.h.
#include "screenmenu/edge_drag.h"

#include <cstdint>

namespace qvx {
namespace {

constexpr std::uintptr_t kLastRowMarker = 65535;  // smaller values of a dock bar's array mark rows

POINT Centre(const RECT& r) { return {(r.left + r.right) / 2, (r.top + r.bottom) / 2}; }

}  // namespace

int EdgeRect(int code, const DockGeometry& dock, RECT* rect) {
  const RECT& r = dock.palette;
  const RECT& c = dock.client;
  switch (code) {
    case kDockLeft:
    case kEdgeRight:
      *rect = {r.right, c.top, r.right + dock.frameX, c.bottom};
      return kEdgeRight;
    case kDockRight:
    case kEdgeLeft:
      *rect = {r.left - dock.frameX, c.top, r.left, c.bottom};
      return kEdgeLeft;
    case kDockTop:
    case kEdgeBottom:
      *rect = {c.left, r.bottom, c.right, r.bottom + dock.frameY};
      return kEdgeBottom;
    case kDockBottom:
    case kEdgeTop:
      *rect = {c.left, r.top - dock.frameY, c.right, r.top};
      return kEdgeTop;
    default:
      return kNoEdge;
  }
}

int EdgeHit(POINT point, const DockGeometry& dock) {
  RECT edge{};
  const int code = EdgeRect(dock.dockBar, dock, &edge);
  const bool inside =
      point.x >= edge.left && point.x < edge.right && point.y >= edge.top && point.y < edge.bottom;
  return inside ? code : kNoEdge;
}

bool TrackOffset(POINT point, const RECT& tracker, const DockGeometry& dock, SIZE least,
                 POINT* offset) {
  const POINT centre = Centre(tracker);
  POINT way{point.x - centre.x, point.y - centre.y};
  const bool sideways = dock.dockBar == kDockLeft || dock.dockBar == kDockRight;
  (sideways ? way.y : way.x) = 0;
  const RECT& r = dock.palette;
  bool tooSmall = false;
  switch (dock.dockBar) {
    case kDockLeft:
      tooSmall = tracker.left - r.left + way.x < least.cx;
      break;
    case kDockRight:
      tooSmall = r.right - tracker.right - way.x < least.cx;
      break;
    case kDockTop:
      tooSmall = tracker.top - r.top + way.y < least.cy;
      break;
    case kDockBottom:
      tooSmall = r.bottom - tracker.bottom - way.y < least.cy;
      break;
    default:
      break;
  }
  if (!tooSmall) *offset = way;
  return !tooSmall;
}

RECT DraggedRect(const RECT& tracker, const DockGeometry& dock, const RECT& window) {
  RECT edge{};
  RECT dragged = window;
  const int code = EdgeRect(dock.dockBar, dock, &edge);
  const POINT from = Centre(edge), to = Centre(tracker);
  switch (code) {
    case kEdgeLeft:
      dragged.left += to.x - from.x;
      break;
    case kEdgeRight:
      dragged.right += to.x - from.x;
      break;
    case kEdgeTop:
      dragged.top += to.y - from.y;
      break;
    case kEdgeBottom:
      dragged.bottom += to.y - from.y;
      break;
    default:
      break;
  }
  return dragged;
}

bool HostLetsTakeEdge(int major, int minor) { return major > 17 || (major == 17 && minor >= 2); }

bool IsBarEntry(const void* entry) {
  return reinterpret_cast<std::uintptr_t>(entry) > kLastRowMarker;
}

}  // namespace qvx
