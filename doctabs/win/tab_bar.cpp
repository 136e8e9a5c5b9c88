#include "doctabs/win/tab_bar.h"

#include "doctabs/host_drawings.h"
#include "ground/win/owned_handle.h"

namespace {

constexpr DWORD kArrowsStyle = 0x50000040;  // child, visible, horizontal
constexpr int kEndless = 32767;

bool IsHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

SystemColours PresentColours() {
  return {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_HIGHLIGHTTEXT),
          ::GetSysColor(COLOR_HIGHLIGHT), ::GetSysColor(COLOR_BTNHIGHLIGHT),
          ::GetSysColor(COLOR_BTNSHADOW)};
}

void PaintTab(CDC& dc, const TabPicture& tab, const CString& name, COLORREF activeBack) {
  if (tab.active) dc.FillSolidRect(&tab.box, activeBack);
  dc.SetBkMode(TRANSPARENT);  // filling sets it back
  dc.SetTextColor(tab.textColour);
  dc.TextOut(tab.text.x, tab.text.y, name);
  dc.Draw3dRect(&tab.box, tab.topLeft, tab.bottomRight);
}

}  // namespace

IMPLEMENT_DYNAMIC(CTabBar, CControlBar)

BEGIN_MESSAGE_MAP(CTabBar, CControlBar)
ON_WM_CREATE()
ON_WM_NCCALCSIZE()
ON_WM_NCPAINT()
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_TIMER()
ON_WM_DESTROY()
ON_MESSAGE(WM_GETOBJECT, OnGetObject)
ON_MESSAGE(kActivateTabMessage, OnActivateTab)
END_MESSAGE_MAP()

CTabBar::CTabBar() { m_font.CreateStockObject(DEFAULT_GUI_FONT); }

CTabBar::~CTabBar() { DestroyWindow(); }

int CTabBar::OnCreate(LPCREATESTRUCT lpcs) {
  if (CControlBar::OnCreate(lpcs) == -1) return -1;
  if (!m_spin.Create(kArrowsStyle, CRect(0, 0, 0, 0), this, 0)) return -1;
  EnableToolTips(TRUE);
  return 0;
}

// Negative or empty: an empty rectangle without the borders.
CRect CTabBar::EmptyInside() const {
  CRect inside(0, 0, 0, 0);
  CalcInsideRect(inside, TRUE);
  return inside;
}

CSize CTabBar::CalcFixedLayout(BOOL, BOOL) {
  return qvx::GuardedOr(CSize(kEndless, 0), [this] {
    int borders[3] = {};  // horizontal, vertical, between parts
    if (m_hWnd) SendMessage(SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(borders));
    TEXTMETRIC metrics{};
    CClientDC dc(nullptr);
    const qvx::SelectedObject font(dc, m_font);
    dc.GetTextMetrics(&metrics);
    return CSize(kEndless, StripHeight({EmptyInside().Height(), ::GetSystemMetrics(SM_CYBORDER),
                                        borders[1], metrics.tmHeight, metrics.tmInternalLeading}));
  });
}

void CTabBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* params) {
  params->rgrc[0] = StripClient(params->rgrc[0], EmptyInside());
}

void CTabBar::OnNcPaint() { EraseNonClient(); }

TabColours CTabBar::Colours() const {
  const TabColours own{m_colorText, m_colorActiveText, m_colorActiveBack, kTabColours.light,
                       kTabColours.dark};
  return ChooseColours(own, IsHighContrast(), PresentColours());
}

void CTabBar::OnPaint() {
  CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  const TabColours colours = Colours();
  const StripPicture picture = PictureOf(m_strip, client, colours);
  if (picture.clipped) dc.IntersectClipRect(&picture.clip);
  const qvx::SelectedObject font(dc, m_font);
  dc.SetViewportOrg(-picture.origin, 0);
  for (const TabPicture& tab : picture.tabs)
    PaintTab(dc, tab, m_strip.m_names.At(tab.index), colours.activeBack);
}

void CTabBar::OnSize(UINT type, int cx, int cy) {
  CControlBar::OnSize(type, cx, cy);
  RecalcTabs(cx, cy);
}

void CTabBar::OnHScroll(UINT code, UINT position, CScrollBar* bar) {
  m_strip.OnScroll(code, static_cast<int>(position));
  CControlBar::OnHScroll(code, position, bar);
}

void CTabBar::OnLButtonDown(UINT flags, CPoint point) {
  m_strip.OnButtonDown(point.x);
  if (m_hWnd) CControlBar::OnLButtonDown(flags, point);
}

void CTabBar::OnLButtonDblClk(UINT flags, CPoint point) {
  m_strip.OnButtonDown(point.x);
  if (m_hWnd) CControlBar::OnLButtonDblClk(flags, point);
}

void CTabBar::OnTimer(UINT_PTR timer) {
  if (timer == static_cast<UINT_PTR>(kTabLayoutTimer)) return m_strip.OnLayoutTimer();
  CControlBar::OnTimer(timer);
}

void CTabBar::OnDestroy() {
  m_access.Disconnect();
  CControlBar::OnDestroy();
}

LRESULT CTabBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
  if (static_cast<LONG>(lParam) != OBJID_CLIENT) return Default();
  return m_access.Answer(m_hWnd, m_strip, wParam);
}

LRESULT CTabBar::OnActivateTab(WPARAM tab, LPARAM) {
  if (static_cast<int>(tab) != m_strip.ActiveTab()) ActivateTab(static_cast<int>(tab));
  return 0;
}

// ---- TabBarWindow

bool TabBarWindow::Exists() { return m_bar.m_hWnd != nullptr; }

bool TabBarWindow::IsVisible() { return m_bar.IsWindowVisible(); }

void TabBarWindow::Show(bool show) { m_bar.ShowWindow(show ? SW_SHOW : SW_HIDE); }

bool TabBarWindow::HasSiblingBelow() { return ::GetWindow(m_bar.m_hWnd, GW_HWNDNEXT) != nullptr; }

void TabBarWindow::MoveToBottom() {
  ::SetWindowPos(m_bar.m_hWnd, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TabBarWindow::RecalcFrame() {
  if (CFrameWnd* frame = m_bar.GetParentFrame()) frame->RecalcLayout(TRUE);
}

SIZE TabBarWindow::ClientSize() {
  RECT client{};
  ::GetClientRect(m_bar.m_hWnd, &client);
  return {client.right, client.bottom};
}

void TabBarWindow::HideArrows() { m_bar.m_spin.ShowWindow(SW_HIDE); }

void TabBarWindow::ShowArrows(const RECT& box, int top, int position) {
  m_bar.m_spin.SetRange(0, static_cast<short>(top));
  m_bar.m_spin.SetPos(position);
  m_bar.m_spin.SetWindowPos(nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
                            SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

int TabBarWindow::ArrowsTop() {
  int lower = 0, upper = 0;
  m_bar.m_spin.GetRange(lower, upper);
  return upper;
}

void TabBarWindow::SetArrows(int position) { m_bar.m_spin.SetPos(position); }

void TabBarWindow::Invalidate() { m_bar.Invalidate(); }

void TabBarWindow::Scroll(const RECT& part, int dx) { m_bar.ScrollWindow(dx, 0, &part, &part); }

void TabBarWindow::StartTimer(int id, int milliseconds) {
  m_bar.SetTimer(static_cast<UINT_PTR>(id), static_cast<UINT>(milliseconds), nullptr);
}

void TabBarWindow::StopTimer(int id) { m_bar.KillTimer(static_cast<UINT_PTR>(id)); }

int TabBarWindow::TextWidth(const CString& text) {
  CClientDC dc(nullptr);  // also before the window exists
  const qvx::SelectedObject font(dc, m_bar.m_font);
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text, text.GetLength(), &size);
  return size.cx;
}

bool TabBarWindow::MayActivate() { return MayActivateDrawings(); }

void TabBarWindow::OnTabActivated() { m_bar.OnTabActivated(); }
