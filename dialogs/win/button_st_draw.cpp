// Drawing of a CButtonST itself: background, frame, image with overlay, caption, all into a buffer
// that is copied to the screen once. Rows of the screen menu override it.
#include "dialogs/button_image.h"
#include "dialogs/win/button_st.h"
#include "dialogs/win/mem_dc.h"

namespace {

// Left and top edges in one colour, bottom and right in the other, one pixel wide.
void DrawEdges(CDC& dc, const CRect& r, int upper, int lower) {
  dc.Draw3dRect(&r, ::GetSysColor(upper), ::GetSysColor(lower));
}

}  // namespace

void CButtonST::DrawItem(LPDRAWITEMSTRUCT item) {
  CDC* target = CDC::FromHandle(item->hDC);
  const CRect itemRect(item->rcItem);
  CMemDC dc(target);
  const UINT state = item->itemState;
  dc.SetBkMode(TRANSPARENT);
  const bool active = m_bMouseOn || (state & ODS_SELECTED);
  dc.FillSolidRect(&itemRect, active ? m_crActiveBg : m_crInactiveBg);
  DrawFrame(dc, itemRect, state);
  CString text;
  GetWindowText(text);
  const bool withText = m_bShowText && !text.IsEmpty();
  CRect caption(itemRect);
  if (m_image.Get()) caption = DrawImages(dc, itemRect, caption, state, withText);
  if (withText) DrawCaption(dc, caption, state, text);
  if (m_bIsFlat && m_bDrawFlatFocus && (state & ODS_FOCUS)) {
    CRect focus(itemRect);
    focus.DeflateRect(3, 3);
    dc.DrawFocusRect(&focus);
  }
}

void CButtonST::DrawFrame(CDC& dc, const CRect& item, UINT state) {
  if (m_bIsFlat) {
    if (m_bDrawBorder) DrawFlatFrame(dc, item, state);
  } else {
    DrawRaisedFrame(dc, item, state);
  }
}

void CButtonST::DrawFlatFrame(CDC& dc, CRect item, UINT state) {
  if (state & ODS_SELECTED)
    DrawEdges(dc, item, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
  else if (m_bMouseOn)
    DrawEdges(dc, item, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
}

void CButtonST::DrawRaisedFrame(CDC& dc, CRect item, UINT state) {
  if (state & ODS_FOCUS) {
    dc.Draw3dRect(&item, RGB(0, 0, 0), RGB(0, 0, 0));
    item.DeflateRect(1, 1);
  }
  if (state & ODS_SELECTED) {
    DrawEdges(dc, item, COLOR_BTNSHADOW, COLOR_BTNSHADOW);
    return;
  }
  DrawEdges(dc, item, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW);
  item.DeflateRect(1, 1);
  DrawEdges(dc, item, COLOR_3DLIGHT, COLOR_BTNSHADOW);
}

CRect CButtonST::DrawImages(CDC& dc, const CRect& item, const CRect& caption, UINT state,
                            bool withText) {
  const SIZE size{m_cxImage, m_cyImage};
  const qvx::ImagePlace place =
      qvx::PlaceImage(m_nAlign, withText, (state & ODS_SELECTED) != 0, item, caption, size);
  const UINT how = DST_BITMAP | ((state & ODS_DISABLED) ? DSS_DISABLED : DSS_NORMAL);
  ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(m_image.Get()), 0,
               place.image.x, place.image.y, size.cx, size.cy, how);
  if (m_hOverlay)
    ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(m_hOverlay.Get()), 0,
                 place.overlay.x, place.overlay.y, qvx::kOverlaySize, qvx::kOverlaySize, how);
  return CRect(place.caption);
}

// Centred both ways in `caption`, in the window's font.
void CButtonST::DrawCaption(CDC& dc, CRect caption, UINT state, const CString& text) {
  if (state & ODS_SELECTED) caption.OffsetRect(1, 1);
  const HFONT font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT, 0, 0));
  qvx::SelectedObject selected(
      dc.m_hDC, font ? static_cast<HGDIOBJ>(font) : ::GetStockObject(DEFAULT_GUI_FONT));
  const bool active = m_bMouseOn || (state & ODS_SELECTED);
  dc.SetTextColor(active ? m_crActiveFg : m_crInactiveFg);
  CRect measured(caption);
  ::DrawTextW(dc.m_hDC, text, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
  const int x = caption.left + (caption.Width() - measured.Width()) / 2;
  const int y = caption.top + (caption.Height() - measured.Height()) / 2;
  const UINT how = DST_PREFIXTEXT | ((state & ODS_DISABLED) ? DSS_DISABLED : DSS_NORMAL);
  const wchar_t* words = text;
  ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(words), 0, x, y,
               measured.Width(), measured.Height(), how);
}
