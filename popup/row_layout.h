// How a row of a pop-up looks: where image, band and texts stand, which colours they have, what a
// state leaves out. One computed value that measuring and drawing share. Plain arithmetic; the
// painting walks this record and decides nothing itself.
#pragma once

#include <string>
#include <string_view>

#include "ground/plain_types.h"

// System colours, by what they are used for here.
enum class PopupColor {
  kMenu,
  kHighlight,
  kMenuText,
  kHighlightText,
  kGrayText,
  kButtonHighlight,
  kButtonShadow,
};

// The two sides of a label. With a tab anywhere there is a right side: what follows the last one.
// Text between the first and the last tab is not shown at all.
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

// What stands in the image column. A grey row has nothing there, not even a check mark.
enum class RowImageKind { kNone, kIcon, kCheckMark };

struct PopupRowLook {
  RECT row;
  bool fillsRow;           // with the menu colour, framed in the same; otherwise only the band
  RECT band;               // filled with the highlight
  RECT imageBox;           // 20 by 20 at most
  RECT innerBox;           // always framed in the menu colour
  bool clearsInner;        // and filled with it
  bool framesImageBox;     // in the menu colour
  bool raisesImageBox;     // light at top and left, dark at bottom and right
  RowImageKind imageKind;  // drawn 16 by 16 at `image`
  POINT image;
  RECT text;    // of both sides: left aligned and right aligned
  RECT shadow;  // where the text is drawn first, in the light colour, when hasShadow
  bool hasShadow;
  PopupColor textColor;
};

constexpr int kPopupImageSize = 16;

PopupRowLook LookOfPopupRow(const RECT& row, PopupRowState state, bool hasTab);

// `textWidth` of the whole label with its tabs; `menuHeight` is what the system makes menus high.
// The image column is not counted: the system adds the width of its own check marks.
SIZE MeasurePopupRow(int textWidth, int menuHeight);

// The row that a letter picks, as the window system wants to be answered: its position, and in the
// high word that it is to be executed. 0 leaves the letter to the system; so does a row without an
// ampersand, which no letter picks.
constexpr unsigned kMenuCharExecute = 2;
class MenuCharRows {
 public:
  virtual ~MenuCharRows() = default;
  virtual int Count() const = 0;
  virtual std::wstring Label(int row) const = 0;
  virtual int Position(int row) const = 0;
};
unsigned PickMenuChar(wchar_t character, unsigned menuFlags, const MenuCharRows& rows);
