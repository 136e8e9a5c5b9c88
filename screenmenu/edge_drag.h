// Dragging the inner edge of a docked palette, as arithmetic over rectangles in the dock bar's
// client coordinates. Capture, drawing of the drag bar and docking are CScreenMenu's.
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

// The strip beside the palette that a dock bar identifier or a hit code means. Returns the hit
// code, or 0 with the rectangle unchanged.
int EdgeRect(int code, const DockGeometry& dock, RECT* rect);

// The hit code when the point lies on the palette's inner edge, else 0.
int EdgeHit(POINT point, const DockGeometry& dock);

// The way of the tracker for a pointer at this place: along one axis only. False when the palette
// would become narrower or lower than `least`; the tracker then stays where it is.
bool TrackOffset(POINT point, const RECT& tracker, const DockGeometry& dock, SIZE least,
                 POINT* offset);

// The palette's window rectangle after the drag: one side moves by the tracker's way from the edge.
RECT DraggedRect(const RECT& tracker, const DockGeometry& dock, const RECT& window);

// From this host release on the palette may take the edge of its dock bar over.
bool HostLetsTakeEdge(int major, int minor);

// An entry of a dock bar's array is a neighbour when it is a bar and not a row marker.
bool IsBarEntry(const void* entry);

}  // namespace qvx
