// How a row looks in one state: which fill, which border, where image and text stand. Painting
// walks this record and computes nothing itself. Called by CSMenuItem::DrawItem.
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
  RECT face;  // what is filled and framed
  RowFill fill;
  RowBorder border;
  bool separator;  // an etched line at the top of `line` and nothing else
  RECT line;
  POINT image;  // upper left corner
  RECT text;    // where the text is measured; PlaceText moves it from there
  bool grayText;
};

constexpr int kFaceInset = 3;                 // the group's colour shows through left of every row
constexpr COLORREF kHoverColor = 0x00AAFFFF;  // a pale yellow

RowLook LookOfRow(const RECT& item, int depth, RowState state, bool hasText, SIZE image);

// The text's final rectangle once its size is known: behind the image column, centred in height.
RECT PlaceText(const RECT& text, SIZE measured);

}  // namespace qvx
