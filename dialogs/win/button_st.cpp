// CButtonST as a window: mouse, images, tip, cursor. button_st_draw.cpp draws.
#include "dialogs/win/button_st.h"

namespace {

// Part of the style word that BM_SETSTYLE keeps.
constexpr UINT kKeptStyle = 0xFFF4;
constexpr int kTipWidth = 200;  // pixels; longer text wraps
constexpr int kTipDelay = 500;  // milliseconds

}  // namespace

IMPLEMENT_DYNAMIC(CButtonST, CButton)

BEGIN_MESSAGE_MAP(CButtonST, CButton)
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
ON_WM_KILLFOCUS()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CButtonST::CButtonST()
    : m_crInactiveBg(::GetSysColor(COLOR_BTNFACE)),
      m_crInactiveFg(::GetSysColor(COLOR_BTNTEXT)),
      m_crActiveBg(::GetSysColor(COLOR_BTNFACE)),
      m_crActiveFg(::GetSysColor(COLOR_BTNTEXT)) {}

CButtonST::~CButtonST() = default;

void CButtonST::SetBitmaps(HBITMAP image, HBITMAP overlay, BYTE width, BYTE height) {
  m_image.Own(image);
  m_hOverlay.Reset(overlay);
  m_cxImage = width;
  m_cyImage = height;
  if (GetSafeHwnd()) RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CButtonST::ShareBitmap(HBITMAP image, BYTE width, BYTE height) {
  if (image == m_image.Get() && width == m_cxImage && height == m_cyImage) return;
  m_image.Borrow(image);
  m_cxImage = width;
  m_cyImage = height;
  if (GetSafeHwnd()) Invalidate();  // InvalidateRect(NULL) would repaint the screen
}

void CButtonST::SetTooltipText(const wchar_t* text) {
  if (!m_pToolTip) m_pToolTip = std::make_unique<CToolTipCtrl>();
  if (m_pToolTip->GetSafeHwnd()) return;
  if (!m_pToolTip->Create(this, TTS_ALWAYSTIP)) return;
  m_pToolTip->AddTool(this, text);
  m_pToolTip->SendMessage(TTM_SETMAXTIPWIDTH, 0, kTipWidth);
  m_pToolTip->SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, kTipDelay);
}

void CButtonST::ActivateTooltip(BOOL active) {
  if (m_pToolTip && m_pToolTip->GetSafeHwnd()) m_pToolTip->SendMessage(TTM_ACTIVATE, active, 0);
}

BOOL CButtonST::SetBtnCursor(int resource) {
  m_hCursor.Reset();
  if (resource == -1) return TRUE;
  m_hCursor.Reset(static_cast<HCURSOR>(
      ::LoadImageW(AfxGetResourceHandle(), MAKEINTRESOURCEW(resource), IMAGE_CURSOR, 0, 0, 0)));
  return m_hCursor.Get() != nullptr;
}

void CButtonST::ClearHover() {
  m_bMouseOn = 0;
  if (GetSafeHwnd()) Invalidate();
}

void CButtonST::SetDefault(COLORREF& color, int systemColor, BOOL repaint) {
  color = ::GetSysColor(systemColor);
  if (repaint && GetSafeHwnd()) Invalidate();
}

// Skipped for a button that is owner-drawn already: saves a repaint of each of up to a
// thousand rows during creation.
void CButtonST::PreSubclassWindow() {
  const DWORD style = GetStyle();
  const DWORD wanted = (style & kKeptStyle) | BS_OWNERDRAW;
  if ((style & 0xFFFF) != wanted) SendMessage(BM_SETSTYLE, wanted, TRUE);
  CButton::PreSubclassWindow();
}

BOOL CButtonST::PreTranslateMessage(MSG* message) {
  return qvx::GuardedOr(FALSE, [&] {
    if (message->message == WM_MOUSEMOVE && m_pToolTip && m_pToolTip->GetSafeHwnd())
      m_pToolTip->SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
    return CButton::PreTranslateMessage(message);
  });
}

void CButtonST::OnMouseMove(UINT flags, CPoint point) {
  CButton::OnMouseMove(flags, point);
  CRect client;
  GetClientRect(&client);
  const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
  const qvx::PointerFacts facts{(flags & MK_LBUTTON) != 0, ::GetCapture() == m_hWnd,
                                owner || ::GetParent(m_hWnd), client.PtInRect(point) != FALSE};
  Carry(qvx::StepOnMove(m_bMouseOn, m_bIsFlat, facts));
}

void CButtonST::OnKillFocus(CWnd* next) {
  CButton::OnKillFocus(next);
  Carry(qvx::StepOnFocusLost(m_bMouseOn, m_bIsFlat));
}

// Deliberate: releasing here also takes the capture from the window that has just got it, so a
// press on another row while this one is lit ends the hover of both. A press on this button sends
// the message too, with its own window: it keeps the capture, or a button pressed and left in a
// single move would stay lit.
void CButtonST::OnCaptureChanged(CWnd* next) {
  const bool lost = next != this;
  const qvx::PointerStep step = lost ? qvx::StepOnCaptureLost(m_bMouseOn) : qvx::PointerStep{};
  if (step.releaseCapture) ::ReleaseCapture();
  if (step.invalidate) Invalidate();
  CButton::OnCaptureChanged(next);
}

BOOL CButtonST::OnSetCursor(CWnd* window, UINT hit, UINT message) {
  if (!m_hCursor) return CButton::OnSetCursor(window, hit, message);
  ::SetCursor(m_hCursor.Get());
  return TRUE;
}

void CButtonST::OnMouseEnter() { SetCapture(); }

void CButtonST::Carry(const qvx::PointerStep& step) {
  if (step.enter) OnMouseEnter();
  if (step.invalidate) Invalidate();
  if (step.releaseCapture) ::ReleaseCapture();
}
