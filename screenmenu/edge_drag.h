// Arithmetic for dragging the inner edge of a docked palette, over rectangles in the dock bar's
// client coordinates. CScreenMenu does mouse capture, drawing of the drag bar and docking.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

// Identifiers of the four dock bars, and the hit codes of the palette's inner edge (those of the
// window system's own sizing borders).
enum DockSide : int {
  kDockTop = 59419,
  kDockLeft = 59420,
  kDockRight = 59421,
  kDockBottom = 59422
};
enum EdgeCode : int {
  kNoEdge = 0,
  kEdgeLeft = 10,
  kEdgeRight = 11,
  kEdgeTop = 12,
  kEdgeBottom = 15
};

struct DockGeometry {
  int dockBar;   // identifier of the dock bar
  RECT palette;  // the palette's window rectangle
  RECT client;   // the dock bar's client rectangle
  int frameX;    // widths of a sizing border
  int frameY;
};

// The strip beside the palette for a dock bar identifier or a hit code. Returns the hit code, or 0
// with the rectangle unchanged.
int EdgeRect(int code, const DockGeometry& dock, RECT* rect);

// The hit code when the point is on the palette's inner edge, else 0.
int EdgeHit(POINT point, const DockGeometry& dock);

// The tracker's displacement for this pointer position, along one axis only. False when the palette
// would become narrower or shorter than `least`; the tracker then does not move.
bool TrackOffset(POINT point, const RECT& tracker, const DockGeometry& dock, SIZE least,
                 POINT* offset);

// The palette's window rectangle after the drag: one side moves by the tracker's displacement.
RECT DraggedRect(const RECT& tracker, const DockGeometry& dock, const RECT& window);

// True from the host release on in which the palette may handle the edge of its dock bar.
bool HostLetsTakeEdge(int major, int minor);

// True when an entry of a dock bar's array is a bar and not a row marker.
bool IsBarEntry(const void* entry);

}  // namespace qvx
