// CAdUiDockControlBar: size, place and stored state of a palette. Painting and mouse handling are
// in adui_dock_caption.cpp.
#include <algorithm>

#include "afxpriv.h"

#include "adui.h"
#include "devhost/ui/palette/palette_layout.h"
#include "devhost/ui/palette/palette_store.h"

IMPLEMENT_DYNAMIC(CAdUiDockControlBar, CControlBar)

BEGIN_MESSAGE_MAP(CAdUiDockControlBar, CControlBar)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_WINDOWPOSCHANGED()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_CAPTURECHANGED()
ON_WM_SYSCOLORCHANGE()
ON_MESSAGE(WM_SETTEXT, OnSetText)
END_MESSAGE_MAP()

namespace {

constexpr SIZE kFirstSize{180, 160};  // of a palette without stored and given size

bool IsHorizontalBar(UINT id) { return id == AFX_IDW_DOCKBAR_TOP || id == AFX_IDW_DOCKBAR_BOTTOM; }

bool IsOnScreen(const CRect& rect) {
  return ::MonitorFromRect(rect, MONITOR_DEFAULTTONULL) != nullptr;
}

}  // namespace

CAdUiDockControlBar::CAdUiDockControlBar(int nStyle) {
  m_dwStyle = DWORD(nStyle) & CBRS_ALL;
  SetBorders(0, 0, 0, 0);
}

CAdUiDockControlBar::~CAdUiDockControlBar() = default;

BOOL CAdUiDockControlBar::PreCreateWindow(CREATESTRUCT& cs) {
  const DWORD style = m_dwStyle;
  const BOOL create = CControlBar::PreCreateWindow(cs);
  m_dwStyle = style;
  return create;
}

BOOL CAdUiDockControlBar::Create(LPCTSTR lpszTitle, CWnd* pParentWnd, UINT nID, DWORD dwStyle,
                                 const RECT& rect) {
  m_dwStyle = dwStyle & CBRS_ALL & 0xFFFF;
  m_docked = CRect(rect).Size();
  LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
  return CWnd::Create(windowClass, lpszTitle,
                      (dwStyle & 0xFFFF0000) | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, rect,
                      pParentWnd, nID);
}

int CAdUiDockControlBar::OnCreate(LPCREATESTRUCT lpcs) {
  if (CControlBar::OnCreate(lpcs) == -1) return -1;
  NONCLIENTMETRICS metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  m_captionFont.CreateFontIndirect(&metrics.lfSmCaptionFont);
  return CreateControlBar(lpcs) ? 0 : -1;
}

void CAdUiDockControlBar::OnDestroy() {
  SaveState();
  CControlBar::OnDestroy();
  m_captionFont.DeleteObject();
}

// --- stored state

void CAdUiDockControlBar::SetToolID(const CLSID* pToolId) {
  m_toolId = pToolId ? *pToolId : CLSID{};
  const PaletteState state = devhost::LoadPaletteState(m_toolId);
  if (m_docked.cx <= 0) m_docked.cx = state.known ? state.docked.cx : kFirstSize.cx;
  if (m_docked.cy <= 0) m_docked.cy = state.known ? state.docked.cy : kFirstSize.cy;
}

void CAdUiDockControlBar::SaveState() const {
  if (m_toolId == CLSID{}) return;
  PaletteState state = devhost::LoadPaletteState(m_toolId);
  state.floating = IsFloating();
  state.docked = m_docked;
  if (state.floating) state.frame = FrameToRemember();
  devhost::SavePaletteState(m_toolId, state);
}

CRect CAdUiDockControlBar::FrameToRemember() const {
  CRect rect;
  GetDockingFrame()->GetWindowRect(rect);
  return rect;
}

void CAdUiDockControlBar::RestoreControlBar(UINT nPrimaryDockBarID, const CRect* pRect) {
  if (!m_pDockSite) return;
  const PaletteState state =
      m_toolId == CLSID{} ? PaletteState{} : devhost::LoadPaletteState(m_toolId);
  if (state.known && state.floating && IsOnScreen(state.frame)) {
    CFrameWnd* frame = m_pDockSite->FloatControlBar(this, state.frame.TopLeft());
    if (frame)
      frame->SetWindowPos(nullptr, 0, 0, state.frame.Width(), state.frame.Height(),
                          SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  if (pRect)
    DockControlBar(nPrimaryDockBarID, pRect);
  else if (!m_pDockBar)
    m_pDockSite->DockControlBar(this, nPrimaryDockBarID);
}

// --- place and size

void CAdUiDockControlBar::EnableDocking(DWORD dwDockStyle) {
  CControlBar::EnableDocking(dwDockStyle);
}

void CAdUiDockControlBar::DockControlBar(UINT nDockBarID, const CRect* pRect) {
  if (!m_pDockSite) return;
  if (pRect && IsHorizontalBar(nDockBarID) && pRect->Height() > 0) m_docked.cy = pRect->Height();
  if (pRect && !IsHorizontalBar(nDockBarID) && pRect->Width() > 0) m_docked.cx = pRect->Width();
  CFrameWnd* site = m_pDockSite;
  site->DockControlBar(this, nDockBarID, pRect);
  site->RecalcLayout();
}

CSize CAdUiDockControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
  (void)bStretch;  // a palette always fills its row
  return bHorz ? CSize(32767, m_docked.cy) : CSize(m_docked.cx, 32767);
}

void CAdUiDockControlBar::SetDockedSize(CSize size) {
  if (m_dwStyle & CBRS_ORIENT_HORZ)
    m_docked.cy = size.cy;
  else
    m_docked.cx = size.cx;
}

void CAdUiDockControlBar::GetFloatingMinSize(long* pnMinWidth, long* pnMinHeight) {
  *pnMinWidth = 60;
  *pnMinHeight = 60;
}

CSize CAdUiDockControlBar::FloatingMinimum() {
  long width = 0, height = 0;
  GetFloatingMinSize(&width, &height);
  return CSize(int(width), int(height));
}

void CAdUiDockControlBar::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
  CControlBar::OnWindowPosChanged(lpwndpos);
  if (lpwndpos->flags & SWP_NOSIZE) return;
  CRect rect(CPoint(lpwndpos->x, lpwndpos->y), CSize(lpwndpos->cx, lpwndpos->cy));
  const PaletteParts parts = Parts();
  InvalidateRect(&parts.caption, FALSE);
  InvalidateRect(&parts.line, FALSE);
  SizeChanged(&rect, IsFloating(), int(lpwndpos->flags));
}

void CAdUiDockControlBar::SizeChanged(CRect*, BOOL, int) {}

// --- closing and commands

bool CAdUiDockControlBar::OnClosing() {
  if (m_pDockSite) m_pDockSite->ShowControlBar(this, FALSE, TRUE);
  return true;
}

BOOL CAdUiDockControlBar::OnCloseFloating() {
  OnClosing();
  return FALSE;  // handled by OnClosing
}

BOOL CAdUiDockControlBar::AddCustomMenuItems(LPARAM) { return TRUE; }

BOOL CAdUiDockControlBar::OnCommand(WPARAM wParam, LPARAM lParam) {
  return CControlBar::OnCommand(wParam, lParam);
}
