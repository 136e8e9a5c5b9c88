// How docked bars share the window along one side of a frame: where each bar goes, where a dropped
// bar is put in, which side takes it. Rectangles and integers only; CDockBar and CDockContext carry
// the answers out. "Along" runs with the side, "across" from the frame's edge inward and is x for
// the left and right side.
#pragma once

#include <vector>

#include "afxv_w32.h"

// The sides, with the numbers of the bar styles CBRS_ALIGN_...
enum DockSide : DWORD {
  kDockNone = 0,
  kDockLeft = 0x1000,
  kDockTop = 0x2000,
  kDockRight = 0x4000,
  kDockBottom = 0x8000,
};
inline bool DockRunsAcrossScreen(DWORD side) { return (side & (kDockTop | kDockBottom)) != 0; }

// One visible bar as it wants to be. `entry` is its index in the dock bar's array.
struct DockBox {
  SIZE wanted;
  int offset;  // where it stands along its row now; a bar that fills has no say
  bool fills;  // takes what the other bars of the row leave
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
    RECT strip;      // beside the row, towards the middle of the frame; empty without a filling bar
    int start, end;  // across, the strip included
  };
  std::vector<Row> rows;
  int thickness = 0;  // of all rows with their strips
};

// Rows stand beside each other in their order from left to right or top to bottom. Bars that fill
// share the rest equally; without one, each bar stays at its offset, pushed aside where bars would
// overlap and back where they would leave the end. `stripWidth` is left beside every row that is
// filled.
DockPlan PlanDockRows(const std::vector<DockRow>& rows, DWORD side, int length, int stripWidth);

// Where a bar whose middle is at the point goes. Inside a row it goes before the first bar whose
// middle lies further along; over the outer sixth of a row, or beside all rows, it gets a row of
// its own. `arraySize` is where the new last row begins.
DockPlace FindDockPlace(const DockPlan& plan, DWORD side, POINT middle, int arraySize);

// The side at which a bar is docked when it is dropped at the point: the nearest allowed edge of
// the area, if it is not further than `reach` inside or outside. Ties go left, top, right, bottom.
DWORD DropSide(POINT point, const RECT& area, DWORD allowed, int reach);

// What the drag frame shows for a side: a band along the whole edge of the area.
RECT DockPreview(const RECT& area, DWORD side, SIZE wanted);

// The strip, moved with the pointer from one place to another: only across, and not so far that the
// row gets thinner than `least` or the strip leaves the area.
RECT DragDockStrip(const RECT& strip, const RECT& bar, DWORD side, POINT from, POINT to, int least,
                   const RECT& area);
// How thick the bar is once its strip stands where it was dragged to.
int ThicknessAfterDrag(const RECT& before, const RECT& after, const RECT& bar, DWORD side);
