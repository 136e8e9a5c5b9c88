// Painting of a row: draws the record that row_layout computed.
#include "ground/win/menu_font.h"
#include "ground/win/module_handle.h"
#include "popup/win/bitmap_menu.h"
#include "resources/resource_ids.h"

namespace {

COLORREF ColorOf(PopupColor color) {
  switch (color) {
    case PopupColor::kMenu:
      return ::GetSysColor(COLOR_MENU);
    case PopupColor::kHighlight:
      return ::GetSysColor(COLOR_HIGHLIGHT);
    case PopupColor::kMenuText:
      return ::GetSysColor(COLOR_MENUTEXT);
    case PopupColor::kHighlightText:
      return ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    case PopupColor::kGrayText:
      return ::GetSysColor(COLOR_GRAYTEXT);
    case PopupColor::kButtonHighlight:
      return ::GetSysColor(COLOR_BTNHIGHLIGHT);
    case PopupColor::kButtonShadow:
      return ::GetSysColor(COLOR_BTNSHADOW);
  }
  return 0;
}

void Fill(CDC& dc, const RECT& place, PopupColor color) {
  const qvx::OwnedBrush brush(::CreateSolidBrush(ColorOf(color)));
  ::FillRect(dc.m_hDC, &place, brush.Get());
}

void Frame(CDC& dc, const RECT& place, PopupColor upper, PopupColor lower) {
  dc.Draw3dRect(&place, ColorOf(upper), ColorOf(lower));
}

void PaintGround(CDC& dc, const PopupRowLook& look) {
  constexpr PopupColor kMenu = PopupColor::kMenu;
  if (look.fillsRow) {
    Fill(dc, look.row, kMenu);
    Frame(dc, look.row, kMenu, kMenu);
  } else {
    Fill(dc, look.band, PopupColor::kHighlight);
  }
  Frame(dc, look.innerBox, kMenu, kMenu);
  if (look.clearsInner) Fill(dc, look.innerBox, kMenu);
  if (look.raisesImageBox)
    Frame(dc, look.imageBox, PopupColor::kButtonHighlight, PopupColor::kButtonShadow);
  if (look.framesImageBox) Frame(dc, look.imageBox, kMenu, kMenu);
}

// LR_LOADMAP3DCOLORS mapped the bitmap's grey to the face colour, which is drawn as transparent. A
// bitmap of another size is scaled.
void PaintImage(CDC& dc, POINT at, HBITMAP image) {
  BITMAP info{};
  ::GetObjectW(image, sizeof info, &info);
  const qvx::OwnedMemoryDc memory(::CreateCompatibleDC(dc.m_hDC));
  qvx::SelectedObject selected(memory.Get(), image);
  ::TransparentBlt(dc.m_hDC, at.x, at.y, kPopupImageSize, kPopupImageSize, memory.Get(), 0, 0,
                   info.bmWidth, info.bmHeight, ::GetSysColor(COLOR_BTNFACE));
}

void PaintImage(CDC& dc, const PopupRowLook& look, HBITMAP icon) {
  if (look.imageKind == RowImageKind::kNone) return;
  if (look.imageKind == RowImageKind::kIcon) {
    if (icon) PaintImage(dc, look.image, icon);
    return;
  }
  const qvx::OwnedBitmap check(static_cast<HBITMAP>(::LoadImageW(
      qvx::ThisModule(), MAKEINTRESOURCEW(IDB_CHECK), IMAGE_BITMAP, 0, 0, kRowBitmapFlags)));
  if (check) PaintImage(dc, look.image, check.Get());
}

class TextPen {
 public:
  TextPen(HDC dc, COLORREF color)
      : m_dc(dc), m_mode(::SetBkMode(dc, TRANSPARENT)), m_color(::SetTextColor(dc, color)) {}
  ~TextPen() {
    ::SetTextColor(m_dc, m_color);
    ::SetBkMode(m_dc, m_mode);
  }
  TextPen(const TextPen&) = delete;
  TextPen& operator=(const TextPen&) = delete;

 private:
  HDC m_dc;
  int m_mode;
  COLORREF m_color;
};

void PaintTextAt(HDC dc, const RowLabel& label, RECT place, PopupColor color) {
  const TextPen pen(dc, ColorOf(color));
  constexpr UINT kLine = DT_SINGLELINE | DT_VCENTER;
  ::DrawTextW(dc, label.left.data(), static_cast<int>(label.left.size()), &place, kLine);
  if (label.hasTab)
    ::DrawTextW(dc, label.right.data(), static_cast<int>(label.right.size()), &place,
                kLine | DT_RIGHT);
}

void PaintText(HDC dc, const PopupRowLook& look, const RowLabel& label) {
  const qvx::OwnedFont font = qvx::MakeMenuFont();
  qvx::SelectedObject selected(
      dc, font ? static_cast<HGDIOBJ>(font.Get()) : ::GetStockObject(DEFAULT_GUI_FONT));
  if (look.hasShadow) PaintTextAt(dc, label, look.shadow, PopupColor::kButtonHighlight);
  PaintTextAt(dc, label, look.text, look.textColor);
}

}  // namespace

void CBitmapMenu::DrawItem(LPDRAWITEMSTRUCT item) {
  const auto* record = reinterpret_cast<const CBitmapMenuItemData*>(item->itemData);
  if (!record || !record->m_pMenuItem) return;
  CDC& dc = *CDC::FromHandle(item->hDC);
  const PopupRowState state{(item->itemState & ODS_SELECTED) != 0,
                            (item->itemState & ODS_GRAYED) != 0,
                            (item->itemState & ODS_CHECKED) != 0};
  const TWCString& text = record->m_pMenuItem->m_strLabel;
  const RowLabel label = SplitLabel({text, static_cast<size_t>(text.Length())});
  const PopupRowLook look = LookOfPopupRow(item->rcItem, state, label.hasTab);
  PaintGround(dc, look);
  PaintImage(dc, look, record->m_hBitmap.Get());
  if (!text.IsEmpty()) PaintText(dc.m_hDC, look, label);
}
