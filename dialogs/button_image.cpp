// See button_image.h.
#include "dialogs/button_image.h"

namespace qvx {
namespace {

// Between the item's left edge and the image, and after the image.
constexpr int kImageInset = 3;

LONG Middle(LONG low, LONG high, LONG size) { return low + (high - low - size) / 2; }

}  // namespace

ImagePlace PlaceImage(int align, bool withText, bool pressed, const RECT& item, const RECT& caption,
                      SIZE image) {
  ImagePlace place{{item.left, item.top}, {}, caption};
  if (align == 0 || align == 1) {
    place.image = {Middle(item.left, item.right, image.cx),
                   Middle(item.top, item.bottom, image.cy)};
    if (withText && align == 0) {
      place.image.x = item.left + kImageInset;
      place.caption.left += image.cx + kImageInset;
    } else if (withText) {
      place.image.y = item.top;
      place.caption.top += image.cy;
    }
  }
  if (pressed) place.image = {place.image.x + 1, place.image.y + 1};
  place.overlay = {place.image.x - kOverlaySize + image.cx,
                   place.image.y + image.cy - kOverlaySize};
  return place;
}

}  // namespace qvx
