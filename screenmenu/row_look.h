// Appearance of a row in one state: fill, border, places of image and text. CSMenuItem::DrawItem
// paints from this record and computes nothing itself.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

struct RowState {
  bool hover;
  bool selected;  // the button is held down
  bool disabled;
};

enum class RowFill { kGroupColor, kHoverColor, kActiveColor };
enum class RowBorder { kNone, kSunken, kRaised };

struct RowLook {
  RECT face;  // the filled and framed part
  RowFill fill;
  RowBorder border;
  bool separator;  // an etched line at the top of `line` and nothing else
  RECT line;
  POINT image;  // upper left corner
  RECT text;    // for measuring; PlaceText gives the final rectangle
  bool grayText;
};

constexpr int kFaceInset = 3;                 // left of every row the group's colour is visible
constexpr COLORREF kHoverColor = 0x00AAFFFF;  // a pale yellow

RowLook LookOfRow(const RECT& item, int depth, RowState state, bool hasText, SIZE image);

// The text's final rectangle for its measured size: right of the image column, centred vertically.
RECT PlaceText(const RECT& text, SIZE measured);

}  // namespace qvx
