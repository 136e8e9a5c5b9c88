// Layout of an owner-drawn button: places of the image, the overlay and the caption, from
// rectangles only. Called by CButtonST::DrawItem.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

struct ImagePlace {
  POINT image;    // upper left corner
  POINT overlay;  // upper left corner of the 4 by 4 overlay
  RECT caption;   // the caption rectangle without the image
};

constexpr int kOverlaySize = 4;

// align 0 puts the image left of the text, 1 above it, any other value at the item's corner.
// Without text the first two centre it. A pressed image moves by (1, 1).
ImagePlace PlaceImage(int align, bool withText, bool pressed, const RECT& item, const RECT& caption,
                      SIZE image);

}  // namespace qvx
