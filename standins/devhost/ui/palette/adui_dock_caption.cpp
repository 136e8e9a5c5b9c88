// The caption of a docked palette: painting and mouse handling, both by the
// parts of palette_layout.
#include "afxpriv.h"

#include "adui.h"
#include "devhost/ui/palette/palette_layout.h"

namespace {

COLORREF Blend(COLORREF a, COLORREF b, int percentOfB) {
  auto mix = [percentOfB](int x, int y) { return (x * (100 - percentOfB) + y * percentOfB) / 100; };
  return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)),
             mix(GetBValue(a), GetBValue(b)));
}

COLORREF StripColor() {
  return Blend(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW), 35);
}

// Two columns of raised dots.
void DrawGrip(CDC& dc, const RECT& where) {
  const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
  const COLORREF dark = Blend(::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNTEXT), 30);
  const int rows = (where.bottom - where.top - 4) / 4;
  const int top = where.top + (where.bottom - where.top - rows * 4) / 2;
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < 2; ++column) {
      const int x = where.left + 2 + column * 3, y = top + row * 4;
      dc.SetPixel(x + 1, y + 1, light);
      dc.SetPixel(x, y, dark);
    }
}

void DrawCross(CDC& dc, const RECT& box, COLORREF color) {
  const int middleX = (box.left + box.right) / 2, middleY = (box.top + box.bottom) / 2;
  for (int i = -3; i <= 3; ++i) {
    dc.FillSolidRect(middleX + i, middleY + i, 2, 1, color);
    dc.FillSolidRect(middleX - i, middleY + i, 2, 1, color);
  }
}

}  // namespace

int CAdUiDockControlBar::CaptionHeight() const {
  LOGFONT font{};
  if (!::GetObject(m_captionFont.m_hObject, sizeof font, &font)) return 18;
  const int height = (font.lfHeight < 0 ? -font.lfHeight : font.lfHeight) + 7;
  return height > 18 ? height : 18;
}

PaletteParts CAdUiDockControlBar::Parts() const {
  CRect client;
  GetClientRect(client);
  return LayOutPalette(client.Size(), IsFloating(), CaptionHeight(), m_dwStyle & CBRS_BORDER_ANY);
}

void CAdUiDockControlBar::GetUsedRect(CRect& rect) const { rect = CRect(Parts().used); }

// --- drawing

void CAdUiDockControlBar::DrawCaption(CDC& dc, const PaletteParts& parts) const {
  const COLORREF strip = StripColor(), text = ::GetSysColor(COLOR_BTNTEXT);
  dc.FillSolidRect(&parts.caption, strip);
  CRect edge(parts.caption);
  edge.top = edge.bottom - 1;
  dc.FillSolidRect(edge, ::GetSysColor(COLOR_BTNSHADOW));
  DrawGrip(dc, parts.gripper);
  CString title;
  GetWindowText(title);
  CRect where(parts.title);
  if (!title.IsEmpty() && !where.IsRectEmpty()) {
    CFont* old = dc.SelectObject(const_cast<CFont*>(&m_captionFont));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(text);
    dc.DrawText(title, where, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SelectObject(old);
  }
  if (CRect(parts.close).IsRectEmpty()) return;
  if (m_closeHot || m_closePressed) {
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), dark = ::GetSysColor(COLOR_BTNSHADOW);
    const bool down = m_closeHot && m_closePressed;
    dc.FillSolidRect(&parts.close, ::GetSysColor(COLOR_BTNFACE));
    dc.Draw3dRect(&parts.close, down ? dark : light, down ? light : dark);
  }
  DrawCross(dc, parts.close, text);
}

// Painted through a memory bitmap, to avoid flicker.
void CAdUiDockControlBar::DoPaint(CDC* pDC) {
  const PaletteParts parts = Parts();
  const CRect strip(parts.caption);
  if (!strip.IsRectEmpty() && pDC->RectVisible(strip)) {
    CDC memory;
    CBitmap bitmap;
    if (memory.CreateCompatibleDC(pDC) &&
        bitmap.CreateCompatibleBitmap(pDC, strip.right, strip.bottom)) {
      CBitmap* old = memory.SelectObject(&bitmap);
      DrawCaption(memory, parts);
      pDC->BitBlt(strip.left, strip.top, strip.Width(), strip.Height(), &memory, strip.left,
                  strip.top, SRCCOPY);
      memory.SelectObject(old);
    }
  }
  if (!CRect(parts.line).IsRectEmpty())
    pDC->FillSolidRect(&parts.line, ::GetSysColor(COLOR_BTNSHADOW));
  PaintControlBar(pDC);
}

// Caption and border line are painted completely; erasing them would flicker.
BOOL CAdUiDockControlBar::OnEraseBkgnd(CDC* pDC) {
  const PaletteParts parts = Parts();
  pDC->FillSolidRect(&parts.used, ::GetSysColor(COLOR_BTNFACE));
  return TRUE;
}

LRESULT CAdUiDockControlBar::OnSetText(WPARAM, LPARAM) {
  const LRESULT result = Default();
  const PaletteParts parts = Parts();
  InvalidateRect(&parts.caption, FALSE);
  if (IsFloating()) {
    CString title;
    GetWindowText(title);
    GetDockingFrame()->SetWindowText(title);
  }
  return result;
}

void CAdUiDockControlBar::OnSysColorChange() {
  CControlBar::OnSysColorChange();
  Invalidate();
}

// --- mouse

void CAdUiDockControlBar::ShowCloseBox(bool hot, bool pressed) {
  if (hot == m_closeHot && pressed == m_closePressed) return;
  m_closeHot = hot;
  m_closePressed = pressed;
  const PaletteParts parts = Parts();
  InvalidateRect(&parts.close, FALSE);
}

void CAdUiDockControlBar::OnLButtonDown(UINT nFlags, CPoint point) {
  switch (HitPalette(Parts(), point)) {
    case PaletteHit::kClose:
      SetCapture();
      ShowCloseBox(true, true);
      return;
    case PaletteHit::kCaption:
      ClientToScreen(&point);
      if (m_pDockContext) m_pDockContext->StartDrag(point);
      return;
    case PaletteHit::kContent:
      break;
  }
  CControlBar::OnLButtonDown(nFlags, point);
}

void CAdUiDockControlBar::OnLButtonUp(UINT nFlags, CPoint point) {
  if (!m_closePressed) {
    CControlBar::OnLButtonUp(nFlags, point);
    return;
  }
  const bool inside = HitPalette(Parts(), point) == PaletteHit::kClose;
  ShowCloseBox(inside, false);
  ReleaseCapture();
  if (inside) OnClosing();
}

void CAdUiDockControlBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
  if (HitPalette(Parts(), point) == PaletteHit::kCaption && m_pDockContext)
    m_pDockContext->ToggleDocking();
  else
    CControlBar::OnLButtonDblClk(nFlags, point);
}

void CAdUiDockControlBar::OnMouseMove(UINT nFlags, CPoint point) {
  ShowCloseBox(HitPalette(Parts(), point) == PaletteHit::kClose, m_closePressed);
  if (m_closeHot && !m_leaveAsked) {
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hWnd, 0};
    m_leaveAsked = ::TrackMouseEvent(&track) != FALSE;
  }
  CControlBar::OnMouseMove(nFlags, point);
}

void CAdUiDockControlBar::OnMouseLeave() {
  m_leaveAsked = false;
  ShowCloseBox(false, m_closePressed);
}

void CAdUiDockControlBar::OnCaptureChanged(CWnd* pWnd) {
  if (!pWnd || pWnd->m_hWnd != m_hWnd) ShowCloseBox(m_closeHot, false);
  CControlBar::OnCaptureChanged(pWnd);
}
