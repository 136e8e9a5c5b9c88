// Where a button that draws itself puts its image, its overlay and what is left for the caption.
// Rectangles in, rectangles out. Called by CButtonST::DrawItem.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

struct ImagePlace {
  POINT image;    // upper left corner
  POINT overlay;  // upper left corner of the 4 by 4 overlay
  RECT caption;   // what the image leaves of the caption rectangle
};

constexpr int kOverlaySize = 4;

// align 0 puts the image left of the text, 1 above it, any other value at the item's corner.
// Without text the first two centre it. A pressed image moves by (1, 1).
ImagePlace PlaceImage(int align, bool withText, bool pressed, const RECT& item, const RECT& caption,
                      SIZE image);

}  // namespace qvx
