// Painting of a row: draws the RowLook that row_look.cpp computed.
#include <algorithm>

#include "ground/win/menu_font.h"
#include "kernel/globals.h"
#include "screenmenu/menu_colors.h"
#include "screenmenu/win/menu_item_button.h"

namespace {

constexpr int kBitmapWidth = 16;  // of the source, regardless of the bitmap's real width

void DrawPath(CDC& dc, int systemColor, POINT from, POINT corner, POINT to) {
  const qvx::OwnedPen pen(::CreatePen(PS_SOLID, 1, ::GetSysColor(systemColor)));
  qvx::SelectedObject selected(dc.m_hDC, pen.Get());
  dc.MoveTo(from);
  dc.LineTo(corner);
  dc.LineTo(to);
}

void DrawBorder(CDC& dc, const RECT& r, int upper, int lower) {
  DrawPath(dc, upper, {r.left, r.bottom - 1}, {r.left, r.top}, {r.right, r.top});
  DrawPath(dc, lower, {r.left, r.bottom - 1}, {r.right - 1, r.bottom - 1},
           {r.right - 1, r.top - 1});
}

}  // namespace

COLORREF MenuColor(int depth) { return g_menuColors[qvx::ColorSlot(depth)]; }

// DrawItem paints everything right of the inset, so only the inset is filled, with the colour of
// the group. The default handling would fill it grey, and every row would flicker.
BOOL CSMenuItem::OnEraseBkgnd(CDC* dc) {
  CRect inset;
  GetClientRect(&inset);
  inset.right = std::min(inset.right, inset.left + qvx::kFaceInset);
  dc->FillSolidRect(&inset, MenuColor(m_nDepth));
  return TRUE;
}

void CSMenuItem::DrawItem(LPDRAWITEMSTRUCT item) {
  CDC& dc = *CDC::FromHandle(item->hDC);
  CString text;
  GetWindowText(text);
  const qvx::RowState state{m_bMouseOn != 0, (item->itemState & ODS_SELECTED) != 0,
                            (item->itemState & ODS_DISABLED) != 0};
  const qvx::RowLook look =
      qvx::LookOfRow(item->rcItem, m_nDepth, state, !text.IsEmpty(), {m_cxImage, m_cyImage});
  PaintFace(dc, look);
  if (look.separator) {
    CRect line(look.line);
    dc.DrawEdge(&line, EDGE_ETCHED, BF_TOP);
    return;
  }
  if (m_image.Get()) PaintImage(dc, look);
  PaintText(dc, look, text);
}

void CSMenuItem::PaintFace(CDC& dc, const qvx::RowLook& look) {
  COLORREF fill = MenuColor(m_nDepth);
  if (look.fill == qvx::RowFill::kHoverColor) fill = qvx::kHoverColor;
  if (look.fill == qvx::RowFill::kActiveColor) fill = m_crActiveBg;
  dc.FillSolidRect(&look.face, fill);
  if (look.border == qvx::RowBorder::kSunken)
    DrawBorder(dc, look.face, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
  if (look.border == qvx::RowBorder::kRaised)
    DrawBorder(dc, look.face, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
}

// LR_LOADMAP3DCOLORS mapped the bitmap's grey to the face colour, which is drawn as transparent.
void CSMenuItem::PaintImage(CDC& dc, const qvx::RowLook& look) {
  BITMAP info{};
  ::GetObjectW(m_image.Get(), sizeof info, &info);
  const qvx::OwnedMemoryDc memory(::CreateCompatibleDC(dc.m_hDC));
  qvx::SelectedObject selected(memory.Get(), m_image.Get());
  ::TransparentBlt(dc.m_hDC, look.image.x, look.image.y, m_cxImage, m_cyImage, memory.Get(), 0, 0,
                   kBitmapWidth, info.bmHeight, ::GetSysColor(COLOR_BTNFACE));
}

void CSMenuItem::PaintText(CDC& dc, const qvx::RowLook& look, const CString& text) {
  const qvx::OwnedFont font = qvx::MakeMenuFont();
  qvx::SelectedObject selected(
      dc.m_hDC, font ? static_cast<HGDIOBJ>(font.Get()) : ::GetStockObject(DEFAULT_GUI_FONT));
  dc.SetTextColor(m_crActiveFg);
  dc.SetBkMode(TRANSPARENT);
  RECT measured = look.text;
  ::DrawTextW(dc.m_hDC, text, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
  const RECT place =
      qvx::PlaceText(look.text, {measured.right - measured.left, measured.bottom - measured.top});
  const UINT how = DST_PREFIXTEXT | (look.grayText ? DSS_DISABLED : DSS_NORMAL);
  const wchar_t* words = text;
  ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(words), 0, place.left,
               place.top, place.right - place.left, place.bottom - place.top, how);
}
