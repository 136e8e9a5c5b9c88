// See row_look.h.
#include "screenmenu/row_look.h"

namespace qvx {
namespace {

constexpr int kTextInset = 4;
constexpr int kImageColumn = 21;  // width; the text follows it, with or without an image

// One pixel to the right under the pointer, one more down while held.
POINT ImageCorner(const RECT& face, RowState state, SIZE image) {
  POINT corner{face.left, face.top + (face.bottom - image.cy - face.top) / 2};
  const int moved = (state.hover ? 1 : 0) + (state.selected ? 1 : 0);
  if (moved > 0) ++corner.x;
  if (moved == 2) ++corner.y;
  return corner;
}

RowFill FillOf(int depth, RowState state) {
  if (!state.hover && !state.selected) return RowFill::kGroupColor;
  return depth > 0 ? RowFill::kHoverColor : RowFill::kActiveColor;
}

RowBorder BorderOf(RowState state) {
  if (state.selected) return RowBorder::kSunken;
  return state.hover ? RowBorder::kRaised : RowBorder::kNone;
}

}  // namespace

RowLook LookOfRow(const RECT& item, int depth, RowState state, bool hasText, SIZE image) {
  RowLook look{};
  look.face = item;
  look.face.left += kFaceInset;
  look.fill = FillOf(depth, state);
  look.border = BorderOf(state);
  look.separator = !hasText;
  look.line = look.face;
  look.line.top += (look.face.bottom - look.face.top) / 2;
  look.image = ImageCorner(look.face, state, image);
  look.text = look.face;
  if (state.selected) {
    look.text = {look.text.left + 1, look.text.top + 1, look.text.right + 1, look.text.bottom + 1};
  }
  look.text.left += kTextInset;
  look.grayText = state.disabled;
  return look;
}

RECT PlaceText(const RECT& text, SIZE measured) {
  const int down = ((text.bottom - text.top) - measured.cy) / 2;
  const int left = text.left + kImageColumn, top = text.top + down;
  return {left, top, left + measured.cx, top + measured.cy};
}

}  // namespace qvx
