// The status bar; see the header. All positions come from pane_layout.
#include "devhost/ui/bars/status_bar.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "devhost/core/base/journal.h"

namespace devhost {
namespace {

constexpr int kIcon = 16;
StatusBar* g_bar = nullptr;

std::wstring TextOf(const AcPane& pane) {
  CString text;
  pane.GetText(text);
  return std::wstring(static_cast<LPCTSTR>(text));
}

int TextWidth(HDC dc, const std::wstring& text) {
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

void FillArrow(HDC dc, int centre, int top) {
  for (int row = 0; row < 3; ++row) {
    const RECT line = {centre - 2 + row, top + row, centre + 3 - row, top + row + 1};
    ::FillRect(dc, &line, ::GetSysColorBrush(COLOR_BTNTEXT));
  }
}

}  // namespace

StatusBar* TheStatusBar() { return g_bar; }

bool StatusBar::CreateIn(CFrameWnd* frame) {
  m_font = MenuFont();
  m_dwStyle = CBRS_BOTTOM;
  if (!CWnd::Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, CRect(0, 0, 0, 0), frame,
                    kId))
    return false;
  m_toolTip = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, m_hWnd,
                                nullptr, nullptr, nullptr);
  g_bar = this;
  return true;
}

void StatusBar::ShowCoordinates(const std::wstring& text) {
  if (text == m_coordinates) return;
  m_coordinates = text;
  const RECT r = Layout().coordinates;
  ::InvalidateRect(m_hWnd, &r, FALSE);
}

void StatusBar::SetMessage(const std::wstring& text) {
  if (text == m_message) return;
  if (!m_messageBefore) m_messageBefore = m_message;
  m_message = text;
  TheJournal().Record("statustext", {{"text", Utf8(text)}});
  const RECT r = Layout().message;
  ::InvalidateRect(m_hWnd, &r, FALSE);
}

void StatusBar::RestoreMessage() {
  if (!m_messageBefore) return;
  SetMessage(*std::exchange(m_messageBefore, std::nullopt));
  m_messageBefore.reset();
}

BOOL StatusBar::Insert(int index, AcPane* pane, BOOL update) {
  if (!pane || index < 0 || index > GetPaneCount() || GetIndex(pane) >= 0) return FALSE;
  m_panes.insert(m_panes.begin() + index, pane);
  if (update) Update();
  return TRUE;
}

BOOL StatusBar::Add(AcPane* pane, BOOL update) { return Insert(GetPaneCount(), pane, update); }

BOOL StatusBar::Remove(AcPane* pane, BOOL update) { return Remove(GetIndex(pane), update); }

BOOL StatusBar::Remove(int index, BOOL update) {
  if (index < 0 || index >= GetPaneCount()) return FALSE;
  m_panes.erase(m_panes.begin() + index);
  if (update) Update();
  return TRUE;
}

BOOL StatusBar::RemoveAllPanes(BOOL update) {
  m_panes.clear();
  if (update) Update();
  return TRUE;
}

int StatusBar::GetPaneCount() const { return static_cast<int>(m_panes.size()); }

AcPane* StatusBar::GetPane(int index) const {
  return index >= 0 && index < GetPaneCount() ? m_panes[index] : nullptr;
}

int StatusBar::GetIndex(AcPane* pane) const {
  const auto found = std::find(m_panes.begin(), m_panes.end(), pane);
  return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

BOOL StatusBar::GetRect(AcPane* pane, RECT& rect) const {
  const int index = GetIndex(pane);
  if (index < 0) return FALSE;
  rect = Layout().panes[index];
  return !::IsRectEmpty(&rect);
}

HWND StatusBar::GetWindow() const { return m_hWnd; }

void StatusBar::Update() {
  if (!m_hWnd) return;
  RefreshToolTips();
  ::InvalidateRect(m_hWnd, nullptr, FALSE);
}

int StatusBar::Height() const { return std::max(Scaled(26), kIcon + 8); }

CSize StatusBar::CalcFixedLayout(BOOL, BOOL) { return CSize(32767, Height()); }

int StatusBar::MeasurePane(HDC dc, AcPane& pane) const {
  const std::wstring text = TextOf(pane);
  int width = Scaled(8);
  if (pane.GetIcon()) width += kIcon;
  if (!text.empty()) width += TextWidth(dc, text) + Scaled(4);
  if (pane.GetStyle() & ACSBPS_POPUP) width += Scaled(10);
  return width;
}

StatusLayout StatusBar::Layout() const {
  RECT client{};
  ::GetClientRect(m_hWnd, &client);
  WindowDc dc(m_hWnd);
  Selected font(dc, m_font.Get());
  std::vector<PaneMeasure> measures;
  for (AcPane* pane : m_panes)
    measures.push_back({MeasurePane(dc, *pane), pane->GetMinWidth(), pane->GetMaxWidth(),
                        pane->IsVisible() != FALSE});
  return LayOutStatusBar({client.right, client.bottom}, Scaled(230), Scaled(2), measures);
}

void StatusBar::Paint() {
  PaintScope dc(m_hWnd);
  ::FillRect(dc, &dc.Client(), ::GetSysColorBrush(COLOR_BTNFACE));
  RECT edge = dc.Client();
  ::DrawEdge(dc, &edge, BDR_SUNKENOUTER, BF_TOP);
  Selected font(dc, m_font.Get());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
  const StatusLayout layout = Layout();
  PaintText(dc, m_coordinates, layout.coordinates);
  PaintText(dc, m_message, layout.message);
  for (size_t i = 0; i < m_panes.size(); ++i)
    if (!::IsRectEmpty(&layout.panes[i])) PaintPane(dc, *m_panes[i], layout.panes[i]);
}

void StatusBar::PaintText(HDC dc, const std::wstring& text, RECT rect) const {
  rect.left += Scaled(8);
  ::DrawTextW(dc, text.c_str(), -1, &rect,
              DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void StatusBar::PaintPane(HDC dc, AcPane& pane, RECT rect) const {
  ::InflateRect(&rect, 0, -2);
  const int style = pane.GetStyle();
  const bool pressed = (style & ACSBPS_NORMAL) && !(style & ACSBPS_POPUP);
  if (pressed) {
    ::FillRect(dc, &rect, ::GetSysColorBrush(COLOR_3DLIGHT));
    ::DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT);
  } else if (style & ACSBPS_POPOUT) {
    ::DrawEdge(dc, &rect, BDR_RAISEDINNER, BF_RECT);
  } else {
    ::DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT | BF_FLAT);
  }
  const int middle = (rect.top + rect.bottom) / 2;
  int x = rect.left + Scaled(4);
  if (HICON icon = pane.GetIcon()) {
    ::DrawIconEx(dc, x, middle - kIcon / 2, icon, kIcon, kIcon, 0, nullptr, DI_NORMAL);
    x += kIcon;
  }
  RECT textRect = {x + Scaled(2), rect.top, rect.right, rect.bottom};
  if (style & ACSBPS_POPUP) {
    FillArrow(dc, rect.right - Scaled(8), middle - 1);
    textRect.right -= Scaled(12);
  }
  ::DrawTextW(dc, TextOf(pane).c_str(), -1, &textRect,
              DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX);
}

// The handler may delete the pane; it is not used afterwards.
void StatusBar::PassMouse(UINT message, UINT flags, POINT point) {
  AcPane* pane = GetPane(HitTestPane(Layout(), point));
  if (!pane || !pane->IsEnabled()) return;
  const CPoint at(point.x, point.y);
  if (message == WM_LBUTTONDOWN) pane->OnLButtonDown(flags, at);
  if (message == WM_LBUTTONDBLCLK) pane->OnLButtonDblClk(flags, at);
  if (message == WM_RBUTTONDOWN) pane->OnRButtonDown(flags, at);
}

// One tool for each pane; its text is requested when the tip is shown.
void StatusBar::RefreshToolTips() {
  const StatusLayout layout = Layout();
  for (int i = 0; i < std::max<int>(m_toolCount, GetPaneCount()); ++i) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = m_hWnd;
    tool.uId = i + 1;
    if (i < m_toolCount)
      ::SendMessageW(m_toolTip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (i >= GetPaneCount()) continue;
    tool.uFlags = TTF_SUBCLASS;
    tool.rect = layout.panes[i];
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    ::SendMessageW(m_toolTip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
  m_toolCount = GetPaneCount();
}

void StatusBar::FillToolTip(NMHDR* header) {
  AcPane* pane = GetPane(static_cast<int>(header->idFrom) - 1);
  if (!pane) return;
  m_toolText.Empty();
  pane->GetToolTipText(m_toolText);
  reinterpret_cast<NMTTDISPINFOW*>(header)->lpszText =
      const_cast<LPWSTR>(static_cast<LPCTSTR>(m_toolText));
}

LRESULT StatusBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SETTEXT:
      SetMessage(lParam ? reinterpret_cast<const wchar_t*>(lParam) : L"");
      return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
      PassMouse(message, static_cast<UINT>(wParam), point);
      return 0;
    case WM_SIZE:
      Update();
      break;
    case WM_NOTIFY:
      if (reinterpret_cast<NMHDR*>(lParam)->code == TTN_GETDISPINFOW)
        FillToolTip(reinterpret_cast<NMHDR*>(lParam));
      break;
    case WM_DESTROY:
      g_bar = nullptr;
      break;
  }
  return CControlBar::WindowProc(message, wParam, lParam);
}

}  // namespace devhost

AcApStatusBar* acedGetApplicationStatusBar() { return devhost::TheStatusBar(); }
