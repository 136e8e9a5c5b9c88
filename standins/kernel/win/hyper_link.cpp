// Draws itself: otherwise the parent would have to set the colour.
#include "kernel/win/hyper_link.h"

#include <shellapi.h>

IMPLEMENT_DYNAMIC(CHyperLink, CStatic)

BEGIN_MESSAGE_MAP(CHyperLink, CStatic)
ON_WM_PAINT()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_SETCURSOR()
ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
END_MESSAGE_MAP()

namespace {

constexpr COLORREF kLinkColor = RGB(0, 0, 192);
constexpr COLORREF kOverColor = RGB(192, 64, 0);

}  // namespace

CHyperLink::CHyperLink() = default;
CHyperLink::~CHyperLink() = default;

void CHyperLink::SetURL(const wchar_t* address) { m_address = address; }

CString CHyperLink::GetURL() const {
  if (!m_address.IsEmpty() || !m_hWnd) return m_address;
  CString text;
  GetWindowText(text);
  return text;
}

void CHyperLink::SetUnderAndOver(int on) {
  m_underAndOver = on != 0;
  if (!m_hWnd) return;
  MakeFont();
  Invalidate();
}

// Without notifications the dialog and not the static text gets mouse messages.
void CHyperLink::PreSubclassWindow() {
  ModifyStyle(0, SS_NOTIFY);
  MakeFont();
  CStatic::PreSubclassWindow();
}

void CHyperLink::MakeFont() {
  LOGFONT look{};
  CFont* font = GetFont();
  if (!font || !font->GetLogFont(&look)) return;
  look.lfUnderline = m_underAndOver;
  m_font.DeleteObject();
  m_font.CreateFontIndirect(&look);
}

CRect CHyperLink::TextRect(CDC& dc) const {
  CString text;
  GetWindowText(text);
  CRect place;
  GetClientRect(place);
  const int width = place.right;
  dc.DrawText(text, place, DT_SINGLELINE | DT_NOPREFIX | DT_CALCRECT);
  if (place.right > width) place.right = width;
  return place;
}

bool CHyperLink::IsOverText(CPoint point) {
  CClientDC dc(this);
  CFont* before = dc.SelectObject(&m_font);
  const CRect place = TextRect(dc);
  dc.SelectObject(before);
  return place.PtInRect(point) != FALSE;
}

void CHyperLink::OnPaint() {
  CPaintDC dc(this);
  CRect all;
  GetClientRect(all);
  const auto ground = reinterpret_cast<HBRUSH>(
      ::SendMessageW(::GetParent(m_hWnd), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                     reinterpret_cast<LPARAM>(m_hWnd)));
  ::FillRect(dc.m_hDC, all, ground ? ground : ::GetSysColorBrush(COLOR_BTNFACE));
  CString text;
  GetWindowText(text);
  CFont* before = dc.SelectObject(&m_font);
  dc.SetBkMode(TRANSPARENT);
  dc.SetTextColor(m_over ? kOverColor : kLinkColor);
  dc.DrawText(text, TextRect(dc), DT_SINGLELINE | DT_NOPREFIX);
  dc.SelectObject(before);
}

void CHyperLink::OnLButtonUp(UINT flags, CPoint point) {
  CStatic::OnLButtonUp(flags, point);
  constexpr int kLongestAddress = 2083;  // longer ones crash the shell library
  if (!IsOverText(point) || GetURL().GetLength() > kLongestAddress) return;
  ::ShellExecuteW(m_hWnd, L"open", GetURL(), nullptr, nullptr, SW_SHOWNORMAL);
}

void CHyperLink::OnMouseMove(UINT flags, CPoint point) {
  CStatic::OnMouseMove(flags, point);
  SetOver(IsOverText(point));
  TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, m_hWnd, 0};
  ::TrackMouseEvent(&leave);
}

LRESULT CHyperLink::OnMouseLeave(WPARAM, LPARAM) {
  SetOver(false);
  return 0;
}

void CHyperLink::SetOver(bool over) {
  over = over && m_underAndOver;
  if (over == m_over) return;
  m_over = over;
  Invalidate();
}

BOOL CHyperLink::OnSetCursor(CWnd*, UINT, UINT) {
  CPoint point;
  ::GetCursorPos(&point);
  ScreenToClient(&point);
  ::SetCursor(::LoadCursorW(nullptr, IsOverText(point) ? IDC_HAND : IDC_ARROW));
  return TRUE;
}
