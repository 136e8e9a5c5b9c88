// Positions of the strip as plain functions. `offsets` holds the left edge of each tab in strip
// coordinates and one entry more for the end of the last tab; entry 0 is 0. Strip coordinates are
// client coordinates plus the offset of the first tab shown.
#pragma once

#include <span>

#include "ground/plain_types.h"

constexpr int kTabPadding = 20;     // a tab is wider than its text by this
constexpr int kTabTextIndent = 10;  // from the tab's left edge to its text
constexpr int kTabGap = 2;          // the end of a tab's width, which belongs to no tab

using TabOffsets = std::span<const int>;

inline int TabCount(TabOffsets offsets) { return static_cast<int>(offsets.size()) - 1; }

// The tab at x in strip coordinates, or the tab count. Both edges are open: x on an offset or in
// the gap is on no tab.
int HitTab(TabOffsets offsets, int x);

// As HitTab, but -1 for none, and the first pixel of the gap still counts. Deliberate: the tip
// stays for one pixel more than a click is taken.
int TipTab(TabOffsets offsets, int x);

// The offset of the first tab shown. A first tab beyond the last one, possible while the strip is
// hidden, counts as the end.
int OriginOf(TabOffsets offsets, int firstTab);

// The largest scroll position: the first index from 1 on from which the tabs end left of the
// arrows; the tab count when none does, and 1 with fewer than two tabs. `arrowsLeft` is their left
// edge.
int LastScrollPosition(TabOffsets offsets, int arrowsLeft);

// The arrows: as high as the client area, twice as wide as high, at its right end.
RECT ArrowsBox(int cx, int cy);

// The part of the client area that shows tabs while the arrows are shown.
RECT TabsBox(const RECT& client);

// Metrics that give the height of the strip.
struct StripMetrics {
  int insideHeight;    // of an empty rectangle without the bar's borders: negative or 0
  int borderLine;      // SM_CYBORDER
  int verticalBorder;  // of the window class
  int fontHeight;      // tmHeight
  int fontLeading;     // tmInternalLeading
};
int StripHeight(const StripMetrics& metrics);

// The client rectangle of the strip: `inside` is an empty rectangle without the bar's borders. The
// top is 2 pixels higher than the borders leave it.
RECT StripClient(const RECT& proposed, const RECT& inside);
