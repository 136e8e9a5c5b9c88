// Layout of docked bars along one side of a frame: the place of each bar, where a dropped bar is
// inserted, on which side it docks. Rectangles and integers only; CDockBar and CDockContext apply
// the results. "Along" is the direction of the side, "across" points from the frame's edge inward
// and is x for the left and right side.
#pragma once

#include <vector>

#include "afxv_w32.h"

// Sides, numbered as the bar styles CBRS_ALIGN_...
enum DockSide : DWORD {
  kDockNone = 0,
  kDockLeft = 0x1000,
  kDockTop = 0x2000,
  kDockRight = 0x4000,
  kDockBottom = 0x8000,
};
inline bool DockRunsAcrossScreen(DWORD side) { return (side & (kDockTop | kDockBottom)) != 0; }

// One visible bar before layout. `entry` is its index in the dock bar's array.
struct DockBox {
  SIZE wanted;
  int offset;  // current position along the row; ignored for a filling bar
  bool fills;  // takes the rest of the row
  int entry;
};
using DockRow = std::vector<DockBox>;  // at least one box

struct DockPlace {
  int at;       // index in the array
  bool newRow;  // followed by a row marker of its own
};

struct DockPlan {
  struct Bar {
    RECT rect;  // client coordinates of the dock bar
    int entry;
  };
  struct Row {
    std::vector<Bar> bars;
    RECT strip;  // next to the row, towards the middle of the frame; empty without a filling bar
    int start, end;  // across, including the strip
  };
  std::vector<Row> rows;
  int thickness = 0;  // of all rows and strips
};

// Rows are placed in order from left to right or top to bottom. Filling bars share the rest of the
// row equally; without one, each bar keeps its offset, but is moved where bars would overlap or
// exceed the end. `stripWidth` is reserved beside every row with a filling bar.
DockPlan PlanDockRows(const std::vector<DockRow>& rows, DWORD side, int length, int stripWidth);

// The place of a bar whose middle is at the point. Inside a row it is inserted before the first bar
// whose middle is further along; over the outer sixth of a row, or beside all rows, it gets a row
// of its own. `arraySize` is the index of a new last row.
DockPlace FindDockPlace(const DockPlan& plan, DWORD side, POINT middle, int arraySize);

// The side on which a bar dropped at the point docks: the nearest allowed edge of the area, at most
// `reach` away inside or outside. Ties go left, top, right, bottom.
DWORD DropSide(POINT point, const RECT& area, DWORD allowed, int reach);

// The preview of docking on a side: a band along the whole edge of the area.
RECT DockPreview(const RECT& area, DWORD side, SIZE wanted);

// The strip after a drag between two points: moved across only, so that the row is not thinner than
// `least` and the strip stays in the area.
RECT DragDockStrip(const RECT& strip, const RECT& bar, DWORD side, POINT from, POINT to, int least,
                   const RECT& area);
// Thickness of the bar after its strip was dragged.
int ThicknessAfterDrag(const RECT& before, const RECT& after, const RECT& bar, DWORD side);
