// Layout of a row of a pop-up: places of image, highlight and texts, colours, effects of states.
// Measuring and painting share it; painting draws from this record and decides nothing itself.
#pragma once

#include <string>
#include <string_view>

#include "ground/plain_types.h"

// System colours, by use.
enum class PopupColor {
  kMenu,
  kHighlight,
  kMenuText,
  kHighlightText,
  kGrayText,
  kButtonHighlight,
  kButtonShadow,
};

// The two sides of a label. With a tab the right side is the text after the last tab. Deliberate:
// text between the first and the last tab is not shown.
struct RowLabel {
  std::wstring_view left, right;
  bool hasTab = false;
};
RowLabel SplitLabel(std::wstring_view label);

struct PopupRowState {
  bool selected = false;
  bool grayed = false;
  bool checked = false;
};

// Content of the image column. A grey row has none, not even a check mark.
enum class RowImageKind { kNone, kIcon, kCheckMark };

struct PopupRowLook {
  RECT row;
  bool fillsRow;           // with the menu colour, framed in it; else the band only
  RECT band;               // filled with the highlight
  RECT imageBox;           // 20 by 20 at most
  RECT innerBox;           // always framed in the menu colour
  bool clearsInner;        // and filled with it
  bool framesImageBox;     // in the menu colour
  bool raisesImageBox;     // light at top and left, dark at bottom and right
  RowImageKind imageKind;  // drawn 16 by 16 at `image`
  POINT image;
  RECT text;    // of both sides: left aligned and right aligned
  RECT shadow;  // if hasShadow: text drawn here first, in the light colour
  bool hasShadow;
  PopupColor textColor;
};

constexpr int kPopupImageSize = 16;

PopupRowLook LookOfPopupRow(const RECT& row, PopupRowState state, bool hasTab);

// `textWidth` is that of the whole label with its tabs, `menuHeight` the system's menu height. The
// image column is not included: the system adds the width of its own check marks.
SIZE MeasurePopupRow(int textWidth, int menuHeight);

// The result of WM_MENUCHAR: the position of the row with this mnemonic in the low word,
// kMenuCharExecute in the high word. 0 leaves the letter to the system; rows without an ampersand
// have no mnemonic.
constexpr unsigned kMenuCharExecute = 2;
class MenuCharRows {
 public:
  virtual ~MenuCharRows() = default;
  virtual int Count() const = 0;
  virtual std::wstring Label(int row) const = 0;
  virtual int Position(int row) const = 0;
};
unsigned PickMenuChar(wchar_t character, unsigned menuFlags, const MenuCharRows& rows);
