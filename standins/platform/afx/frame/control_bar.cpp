// CControlBar: its strip in the layout pass, delayed showing, border lines and margins, messages to
// the frame. CFrameWnd and CDockBar move bars between dock bars.
#include "afxpriv.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_TIMER()
ON_WM_WINDOWPOSCHANGING()
ON_WM_MOUSEACTIVATE()
ON_MESSAGE(WM_SIZEPARENT, OnSizeParent)
ON_MESSAGE(WM_IDLEUPDATECMDUI, OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

namespace {

constexpr int kEndless = 32767;  // "all available room"
// Room of a border line, which is one pixel wide.
constexpr int kLineRoom = 2;

// Notifications of child windows that a bar forwards to its owner if it has no handler.
bool BelongsToOwner(UINT message) {
  switch (message) {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
      return true;
  }
  return false;
}

void TakeStrip(AFX_SIZEPARENTPARAMS* layout, DWORD style, CSize size, CRect* strip) {
  *strip = CRect(layout->rect);
  size.cx = std::min<LONG>(size.cx, strip->Width());
  size.cy = std::min<LONG>(size.cy, strip->Height());
  if (style & CBRS_ORIENT_HORZ) {
    layout->sizeTotal.cy += size.cy;
    layout->sizeTotal.cx = std::max(layout->sizeTotal.cx, size.cx);
    if (style & CBRS_ALIGN_TOP)
      layout->rect.top += size.cy;
    else
      strip->top = layout->rect.bottom -= size.cy;
  } else {
    layout->sizeTotal.cx += size.cx;
    layout->sizeTotal.cy = std::max(layout->sizeTotal.cy, size.cy);
    if (style & CBRS_ALIGN_LEFT)
      layout->rect.left += size.cx;
    else
      strip->left = layout->rect.right -= size.cx;
  }
  strip->right = strip->left + size.cx;
  strip->bottom = strip->top + size.cy;
}

}  // namespace

CControlBar::~CControlBar() {
  DestroyWindow();
  if (m_pDockBar) m_pDockBar->RemoveControlBar(this);
  if (m_pDockSite) m_pDockSite->RemoveControlBar(this);
  delete m_pDockContext;
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom) {
  m_cxLeftBorder = cxLeft;
  m_cyTopBorder = cyTop;
  m_cxRightBorder = cxRight;
  m_cyBottomBorder = cyBottom;
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
  if (m_dwStyle == dwStyle) return;
  const DWORD old = m_dwStyle;
  m_dwStyle = dwStyle;
  OnBarStyleChange(old, dwStyle);
}

// A bar with the plain borders of its side gets the newer ones, which are raised: one line above a
// bar at the top, one below a bar at the bottom, both on a bar at a side.
static DWORD RaisedBorders(DWORD style) {
  if (style & CBRS_BORDER_3D) return style;
  DWORD borders = 0;
  switch (style & (CBRS_ALIGN_ANY | CBRS_BORDER_ANY)) {
    case CBRS_TOP:
      borders = CBRS_BORDER_TOP;
      break;
    case CBRS_BOTTOM:
      borders = CBRS_BORDER_BOTTOM;
      break;
    case CBRS_LEFT:
    case CBRS_RIGHT:
      borders = CBRS_BORDER_TOP | CBRS_BORDER_BOTTOM;
      break;
    default:
      return style;
  }
  return (style & ~DWORD(CBRS_BORDER_ANY)) | borders | CBRS_BORDER_3D;
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
  if (!cs.lpszClass)
    cs.lpszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
  if (!CWnd::PreCreateWindow(cs)) return FALSE;
  cs.style |= WS_CLIPSIBLINGS;
  // Without a bar style of its own the bar takes it from the low word of the window style.
  if (m_dwStyle == 0) m_dwStyle = cs.style & CBRS_ALL & 0xFFFF;
  m_dwStyle = RaisedBorders(m_dwStyle);
  return TRUE;
}

// The owner translates keys, because the frame's accelerators are there; the messages of the bar's
// children are translated first.
BOOL CControlBar::PreTranslateMessage(MSG* pMsg) {
  if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
  for (CWnd* owner = GetOwner(); owner; owner = owner->GetParentFrame())
    if (owner->PreTranslateMessage(pMsg)) return TRUE;
  return FALSE;
}

// A floating bar is destroyed with its frame.
BOOL CControlBar::DestroyWindow() {
  if (!m_hWnd) return FALSE;
  CFrameWnd* frame = IsFloating() ? GetDockingFrame() : nullptr;
  if (frame && frame != m_pDockSite) return frame->DestroyWindow();
  return CWnd::DestroyWindow();
}

void CControlBar::PostNcDestroy() {
  if (m_bAutoDelete) delete this;
}

int CControlBar::OnCreate(LPCREATESTRUCT lpcs) {
  if (CWnd::OnCreate(lpcs) == -1) return -1;
  // Registers the bar at the frame on creation, so that GetControlBar finds it by identifier.
  if (CFrameWnd* frame = GetParentFrame(); frame && !m_pDockSite && !IsDockBar()) {
    m_pDockSite = frame;
    frame->AddControlBar(this);
  }
  return 0;
}

void CControlBar::OnDestroy() {
  if (m_pDockBar) {
    m_pDockBar->RemoveControlBar(this);
    m_pDockBar = nullptr;
  }
  if (m_pDockSite) {
    m_pDockSite->RemoveControlBar(this);
    m_pDockSite = nullptr;
  }
  CWnd::OnDestroy();
}

void CControlBar::EnableDocking(DWORD dwDockStyle) {
  m_dwDockStyle = dwDockStyle;
  if (!m_pDockContext) m_pDockContext = new CDockContext(this);
  m_pDockContext->m_dwDockStyle = dwDockStyle;
  if (!m_hWndOwner) m_hWndOwner = ::GetParent(m_hWnd);
}

BOOL CControlBar::IsFloating() const { return m_pDockBar && m_pDockBar->m_bFloating; }

CFrameWnd* CControlBar::GetDockingFrame() const {
  CFrameWnd* frame = GetParentFrame();
  return frame ? frame : m_pDockSite;
}

void CControlBar::DelayShow(BOOL bShow) {
  m_nStateFlags &= ~UINT(delayHide | delayShow);
  const bool shown = (GetStyle() & WS_VISIBLE) != 0;
  if (bShow && !shown) m_nStateFlags |= delayShow;
  if (!bShow && shown) m_nStateFlags |= delayHide;
}

BOOL CControlBar::IsVisible() const {
  if (m_nStateFlags & delayHide) return FALSE;
  return (m_nStateFlags & delayShow) || ((GetStyle() & WS_VISIBLE) && !(m_nStateFlags & tempHide));
}

// The style after a pending show or hide, which the layout pass applies here.
DWORD CControlBar::RecalcDelayShow(AFX_SIZEPARENTPARAMS* lpLayout) {
  DWORD style = (m_dwStyle & (CBRS_ALIGN_ANY | CBRS_BORDER_ANY)) | (GetStyle() & WS_VISIBLE);
  if (!(m_nStateFlags & (delayHide | delayShow))) return style;
  const bool show = (m_nStateFlags & delayShow) != 0;
  if (lpLayout && lpLayout->hDWP) {
    m_nStateFlags &= ~UINT(delayHide | delayShow);
    lpLayout->hDWP = ::DeferWindowPos(lpLayout->hDWP, m_hWnd, nullptr, 0, 0, 0, 0,
                                      SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                                          (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
  }
  return show ? style | WS_VISIBLE : style & ~DWORD(WS_VISIBLE);
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
  return CSize(bStretch && bHorz ? kEndless : 0, bStretch && !bHorz ? kEndless : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode) {
  return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
  auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
  const DWORD style = RecalcDelayShow(layout);
  if (!(style & WS_VISIBLE) || !(style & CBRS_ALIGN_ANY)) return 0;
  const DWORD mode = (layout->bStretch ? LM_STRETCH : 0) |
                     (style & CBRS_ORIENT_HORZ ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
  CRect strip;
  TakeStrip(layout, style, CalcDynamicLayout(-1, mode), &strip);
  if (layout->hDWP) AfxRepositionWindow(layout, m_hWnd, strip);
  return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
  if (m_nStateFlags & (delayHide | delayShow)) {
    const bool show = (m_nStateFlags & delayShow) != 0;
    m_nStateFlags &= ~UINT(delayHide | delayShow);
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                     (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
  }
  CFrameWnd* target = (GetStyle() & WS_VISIBLE) ? static_cast<CFrameWnd*>(GetOwner()) : nullptr;
  if (target && !target->IsFrameWnd()) target = target->GetParentFrame();
  if (target) OnUpdateCmdUI(target, BOOL(wParam));
  return 0;
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!BelongsToOwner(message)) return CWnd::WindowProc(message, wParam, lParam);
  LRESULT result = 0;
  if (OnWndMsg(message, wParam, lParam, &result)) return result;
  CWnd* owner = GetOwner();
  if (!owner || owner == this) return CWnd::DefWindowProc(message, wParam, lParam);
  return owner->SendMessage(message, wParam, lParam);
}

void CControlBar::OnTimer(UINT_PTR nIDEvent) { CWnd::OnTimer(nIDEvent); }

// The bar handles the press; the frame needs no second activation.
int CControlBar::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
  return CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
}

// The lines are at the far edges: after a resize the old ones must be
// erased and the new ones drawn.
void CControlBar::OnWindowPosChanging(WINDOWPOS* lpWndPos) {
  CWnd::OnWindowPosChanging(lpWndPos);
  if ((lpWndPos->flags & SWP_NOSIZE) || !(m_dwStyle & CBRS_BORDER_ANY)) return;
  CRect now;
  GetWindowRect(now);
  if (m_dwStyle & CBRS_BORDER_RIGHT && lpWndPos->cx != now.Width()) {
    const int at = std::min<int>(lpWndPos->cx, now.Width()) - kLineRoom;
    InvalidateRect(CRect(at, 0, std::max<int>(lpWndPos->cx, now.Width()), now.Height()), TRUE);
  }
  if (m_dwStyle & CBRS_BORDER_BOTTOM && lpWndPos->cy != now.Height()) {
    const int at = std::min<int>(lpWndPos->cy, now.Height()) - kLineRoom;
    InvalidateRect(CRect(0, at, now.Width(), std::max<int>(lpWndPos->cy, now.Height())), TRUE);
  }
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
  if (m_dwStyle & CBRS_BORDER_LEFT) rect.left += kLineRoom;
  if (m_dwStyle & CBRS_BORDER_TOP) rect.top += kLineRoom;
  if (m_dwStyle & CBRS_BORDER_RIGHT) rect.right -= kLineRoom;
  if (m_dwStyle & CBRS_BORDER_BOTTOM) rect.bottom -= kLineRoom;
  rect.left += bHorz ? m_cxLeftBorder : m_cyTopBorder;
  rect.top += bHorz ? m_cyTopBorder : m_cxLeftBorder;
  rect.right -= bHorz ? m_cxRightBorder : m_cyBottomBorder;
  rect.bottom -= bHorz ? m_cyBottomBorder : m_cxRightBorder;
}

void CControlBar::OnPaint() {
  CPaintDC dc(this);
  if (IsVisible()) DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* pDC) {
  CRect rect;
  GetClientRect(rect);
  DrawBorders(pDC, rect);
}

// A dark line, and with CBRS_BORDER_3D a light one inside it; rect becomes the rest.
void CControlBar::DrawBorders(CDC* pDC, CRect& rect) {
  const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW), light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
  const bool raised = (m_dwStyle & CBRS_BORDER_3D) != 0;
  const CRect all(rect);
  if (m_dwStyle & CBRS_BORDER_LEFT) {
    pDC->FillSolidRect(all.left, all.top, 1, all.Height(), dark);
    if (raised) pDC->FillSolidRect(all.left + 1, all.top, 1, all.Height(), light);
    rect.left += kLineRoom;
  }
  if (m_dwStyle & CBRS_BORDER_TOP) {
    pDC->FillSolidRect(all.left, all.top, all.Width(), 1, dark);
    if (raised) pDC->FillSolidRect(all.left, all.top + 1, all.Width(), 1, light);
    rect.top += kLineRoom;
  }
  if (m_dwStyle & CBRS_BORDER_RIGHT) {
    pDC->FillSolidRect(all.right - 1, all.top, 1, all.Height(), raised ? light : dark);
    if (raised) pDC->FillSolidRect(all.right - 2, all.top, 1, all.Height(), dark);
    rect.right -= kLineRoom;
  }
  if (m_dwStyle & CBRS_BORDER_BOTTOM) {
    pDC->FillSolidRect(all.left, all.bottom - 1, all.Width(), 1, raised ? light : dark);
    if (raised) pDC->FillSolidRect(all.left, all.bottom - 2, all.Width(), 1, dark);
    rect.bottom -= kLineRoom;
  }
}

void CControlBar::EraseNonClient() {
  CWindowDC dc(this);
  CRect client, window;
  GetClientRect(client);
  GetWindowRect(window);
  ClientToScreen(client);
  client.OffsetRect(-window.left, -window.top);
  window.OffsetRect(-window.left, -window.top);
  dc.ExcludeClipRect(client);
  CRect inside(window);
  DrawBorders(&dc, inside);
  dc.IntersectClipRect(inside);
  SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(HDC(dc)));
}
