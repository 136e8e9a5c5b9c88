// Colour slots and arrow bitmaps by nesting depth. The colours themselves are settings. Used by the
// painting of groups and rows.
#pragma once

namespace qvx {

// Slot 0 is for the root only; deeper levels cycle through the other three.
constexpr int ColorSlot(int depth) {
  if (depth <= 3) return depth < 0 ? 0 : depth;
  return 1 + (depth - 4) % 3;
}

constexpr int kArrowKinds = 3;
constexpr int kCheckMarkBitmap = 5013;

// Resource identifiers of the module's own arrow bitmaps. The depth is that of the group that holds
// the header.
constexpr int ArrowBitmap(int depth, bool open) {
  constexpr int kFolded[kArrowKinds] = {5012, 5015, 5016};
  constexpr int kOpen[kArrowKinds] = {199, 5018, 5019};
  return (open ? kOpen : kFolded)[depth % kArrowKinds];
}

}  // namespace qvx
