#include "popup/row_layout.h"

#include <algorithm>

#include "ground/wild_card.h"

namespace {

constexpr int kImageBox = 20;
constexpr int kImageInset = 2;  // of an unselected row's image, from its left and top
constexpr int kBandLeft = 21;
constexpr int kTextLeft = 25;
constexpr int kRightMargin = 16;  // right of a label's right side; added to a measured text
constexpr unsigned kFlagPopup = 0x10;

RECT Moved(const RECT& r, int x, int y) {
  return {r.left + x, r.top + y, r.right + x, r.bottom + y};
}

PopupColor TextColor(PopupRowState state) {
  if (state.grayed) return state.selected ? PopupColor::kMenu : PopupColor::kGrayText;
  return state.selected ? PopupColor::kHighlightText : PopupColor::kMenuText;
}

}  // namespace

RowLabel SplitLabel(std::wstring_view label) {
  const size_t first = label.find(L'\t');
  if (first == std::wstring_view::npos) return {label, {}, false};
  return {label.substr(0, first), label.substr(label.rfind(L'\t') + 1), true};
}

// Deliberate: the image has a fixed distance from the row's top while its box is centred. On a row
// higher than the box the image is above the middle of its raised box.
PopupRowLook LookOfPopupRow(const RECT& row, PopupRowState state, bool hasTab) {
  const LONG height = row.bottom - row.top;
  PopupRowLook look{};
  look.row = row;
  look.fillsRow = !state.selected;
  look.band = {row.left + kBandLeft, row.top, row.right, row.bottom};
  look.imageBox.left = row.left;
  look.imageBox.top = row.top + std::max<LONG>((height - kImageBox) / 2, 0);
  look.imageBox.right = row.left + kImageBox;
  look.imageBox.bottom = look.imageBox.top + kImageBox;
  look.innerBox = {look.imageBox.left + 1, look.imageBox.top + 1, look.imageBox.right - 1,
                   look.imageBox.bottom - 1};
  look.clearsInner = !state.grayed;
  look.framesImageBox = !state.grayed && !state.selected;
  look.raisesImageBox = !state.grayed && state.selected;
  look.imageKind = state.grayed    ? RowImageKind::kNone
                   : state.checked ? RowImageKind::kCheckMark
                                   : RowImageKind::kIcon;
  look.image = {row.left + kImageInset, row.top + kImageInset};
  if (state.selected) look.image = {look.image.x + 1, look.image.y - 1};
  look.text = {row.left + kTextLeft, row.top - 1, row.right - (hasTab ? kRightMargin : 0),
               row.bottom - 1};
  look.hasShadow = state.grayed && !state.selected;
  look.shadow = Moved(look.text, 1, 1);
  look.textColor = TextColor(state);
  return look;
}

SIZE MeasurePopupRow(int textWidth, int menuHeight) {
  return {textWidth + kRightMargin, std::max(menuHeight, kImageBox)};
}

unsigned PickMenuChar(wchar_t character, unsigned menuFlags, const MenuCharRows& rows) {
  if (!(menuFlags & kFlagPopup)) return 0;
  const wchar_t needle[] = {L'&', MatchCase(character), 0};
  for (int row = 0; row < rows.Count(); ++row) {
    if (MatchCase(std::wstring_view(rows.Label(row))).find(needle) == std::wstring::npos) continue;
    return static_cast<unsigned>(rows.Position(row) & 0xFFFF) | kMenuCharExecute << 16;
  }
  return 0;
}
