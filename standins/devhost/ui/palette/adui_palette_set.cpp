// CAdUiPaletteSet: rolling up, and the palette's menu.
#include "afxpriv.h"

#include "adui.h"
#include "devhost/ui/palette/palette_layout.h"

IMPLEMENT_DYNAMIC(CAdUiPaletteSet, CAdUiDockControlBar)

BEGIN_MESSAGE_MAP(CAdUiPaletteSet, CAdUiDockControlBar)
ON_WM_DESTROY()
ON_WM_WINDOWPOSCHANGED()
ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

namespace {

// Identifiers of palettes, after those of the frame's own bars, within the range of control bars.
constexpr UINT kFirstPaletteId = 0xE880, kLastPaletteId = 0xE8FE;
// A timer with a callback, because derived palettes handle WM_TIMER themselves.
constexpr UINT_PTR kWatchTimer = 0x7A10;
enum MenuRow : UINT { kRowFloat = 1, kRowRollUp, kRowClose };

UINT FreePaletteId(CFrameWnd* frame) {
  UINT id = kFirstPaletteId;
  while (id < kLastPaletteId && frame && frame->GetControlBar(id)) ++id;
  return id;
}

}  // namespace

CAdUiPaletteSet::CAdUiPaletteSet() = default;
CAdUiPaletteSet::~CAdUiPaletteSet() = default;

BOOL CAdUiPaletteSet::Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                             DWORD dwPaletteSetStyle) {
  m_paletteStyle = dwPaletteSetStyle;
  CFrameWnd* frame =
      pParentWnd && pParentWnd->IsFrameWnd() ? static_cast<CFrameWnd*>(pParentWnd) : nullptr;
  return CAdUiDockControlBar::Create(lpszTitle, pParentWnd, FreePaletteId(frame), dwStyle, rect);
}

void CAdUiPaletteSet::OnDestroy() {
  ::KillTimer(m_hWnd, kWatchTimer);
  CAdUiDockControlBar::OnDestroy();
}

CString CAdUiPaletteSet::GetName() const {
  CString name;
  GetWindowText(name);
  return name;
}

BOOL CAdUiPaletteSet::SetName(LPCTSTR lpszName) {
  SetWindowText(lpszName);
  return TRUE;
}

void CAdUiPaletteSet::GetMinimumSize(CSize& size) {
  long width = 0, height = 0;
  GetFloatingMinSize(&width, &height);
  size = CSize(int(width), int(height));
}

CSize CAdUiPaletteSet::FloatingMinimum() {
  if (m_rolledUp) return CSize(CAdUiDockControlBar::FloatingMinimum().cx, 0);
  CSize size;
  GetMinimumSize(size);
  return size;
}

CRect CAdUiPaletteSet::FrameToRemember() const {
  CRect rect = CAdUiDockControlBar::FrameToRemember();
  if (m_rolledUp) rect.bottom = rect.top + m_unrolledHeight;
  return rect;
}

BOOL CAdUiPaletteSet::PreTranslateMessage(MSG* pMsg) {
  return CAdUiDockControlBar::PreTranslateMessage(pMsg);
}

void CAdUiPaletteSet::OnWindowPosChanged(WINDOWPOS* lpwndpos) {
  CAdUiDockControlBar::OnWindowPosChanged(lpwndpos);
}

// --- rolling up

CMiniDockFrameWnd* CAdUiPaletteSet::FloatingFrame() const {
  return IsFloating() ? DYNAMIC_DOWNCAST(CMiniDockFrameWnd, GetDockingFrame()) : nullptr;
}

BOOL CAdUiPaletteSet::SetAutoRollup(BOOL bRollup) {
  const BOOL before = m_autoRollup;
  m_autoRollup = bRollup;
  m_ticksOutside = 0;
  if (bRollup) {
    ::SetTimer(m_hWnd, kWatchTimer, kRollTick, &CAdUiPaletteSet::WatchPointer);
  } else {
    ::KillTimer(m_hWnd, kWatchTimer);
    RollOut();
  }
  return before;
}

void CALLBACK CAdUiPaletteSet::WatchPointer(HWND window, UINT, UINT_PTR, DWORD) {
  CWnd* wnd = CWnd::FromHandlePermanent(window);
  if (auto* palette = wnd ? DYNAMIC_DOWNCAST(CAdUiPaletteSet, wnd) : nullptr) palette->Watch();
}

void CAdUiPaletteSet::Watch() {
  CMiniDockFrameWnd* frame = FloatingFrame();
  if (!frame) m_rolledUp = FALSE;  // docked palettes do not roll up
  if (!frame || !frame->IsWindowVisible()) {
    m_ticksOutside = 0;
    return;
  }
  CPoint pointer;
  CRect area;
  ::GetCursorPos(&pointer);
  frame->GetWindowRect(area);
  const bool held = ::GetCapture() != nullptr || ::GetKeyState(VK_LBUTTON) < 0;
  switch (NextRollStep(m_rolledUp, area.PtInRect(pointer), held, &m_ticksOutside)) {
    case RollStep::kRollUp:
      RollUp();
      break;
    case RollStep::kRollOut:
      RollOut();
      break;
    case RollStep::kStay:
      break;
  }
}

void CAdUiPaletteSet::SetFrameHeight(int height) {
  CMiniDockFrameWnd* frame = FloatingFrame();
  CRect now;
  frame->GetWindowRect(now);
  frame->SetWindowPos(nullptr, 0, 0, now.Width(), height,
                      SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CAdUiPaletteSet::RollUp() {
  CMiniDockFrameWnd* frame = FloatingFrame();
  if (!frame || m_rolledUp) return;
  CRect window, client;
  frame->GetWindowRect(window);
  frame->GetClientRect(client);
  m_unrolledHeight = window.Height();
  m_rolledUp = TRUE;
  SetFrameHeight(window.Height() - client.Height());
  OnRolledUp();
}

void CAdUiPaletteSet::RollOut() {
  if (!m_rolledUp) return;
  m_rolledUp = FALSE;
  m_ticksOutside = 0;
  if (!FloatingFrame()) return;
  SetFrameHeight(m_unrolledHeight);
  OnRolledOut();
}

// --- the palette's menu

void CAdUiPaletteSet::OnContextMenu(CWnd*, CPoint point) {
  CMenu menu;
  if (!menu.CreatePopupMenu()) return;
  menu.AppendMenu(MF_STRING, kRowFloat, IsFloating() ? L"固定" : L"浮动");
  if (m_paletteStyle & PSS_AUTO_ROLLUP)
    menu.AppendMenu(MF_STRING | (m_autoRollup ? MF_CHECKED : 0), kRowRollUp, L"自动卷起");
  AddCustomMenuItems(reinterpret_cast<LPARAM>(menu.m_hMenu));
  menu.AppendMenu(MF_SEPARATOR);
  menu.AppendMenu(MF_STRING, kRowClose, L"关闭");
  if (point.x == -1 && point.y == -1) {
    CRect rect;
    GetWindowRect(rect);
    point = rect.TopLeft();
    point.Offset(5, 5);
  }
  switch (menu.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x, point.y, this)) {
    case kRowFloat:
      if (m_pDockContext) m_pDockContext->ToggleDocking();
      break;
    case kRowRollUp:
      SetAutoRollup(!m_autoRollup);
      break;
    case kRowClose:
      OnClosing();
      break;
  }
}
