// CMenuGroup: carries out what group_layout and scroll_rules decide.
#include "kernel/globals.h"
#include "screenmenu/group_rules.h"
#include "screenmenu/menu_group.h"
#include "screenmenu/scroll_rules.h"

namespace {

constexpr UINT kScrollBarId = 100;
constexpr DWORD kScrollBarStyle = WS_CHILD | WS_VISIBLE | SBS_VERT;
constexpr int kMessageThumbLimit = 0xFFFF;  // what fits into the position of WM_VSCROLL

}  // namespace

qvx::LayoutRequest CMenuGroup::RequestLayout(const CRect& client, const std::vector<int>& heights) {
  CMenuGroup* open = OpenChild();
  qvx::LayoutRequest request{};
  request.client = client;
  request.limitHeight = m_bLimitHeight;
  request.scrolls = ScrollHostOf() == this;
  request.total = ContentHeight();
  request.rowsHeight = m_nContentHeight;
  request.barWidth = g_bScrollBar ? qvx::kScrollBarWidth : 0;
  request.hasBar = HasScrollBar();
  request.scrollPos = request.hasBar ? m_scrollBar.GetScrollPos() : 0;
  request.heights = &heights;
  request.openIndex = open ? OpenIndex() : qvx::kNothingOpen;
  request.childHeight = open ? open->ContentHeight() : 0;
  return request;
}

void CMenuGroup::LayoutGroup() {
  if (!m_hWnd) return;
  CRect client;
  GetClientRect(&client);
  std::vector<int> heights;
  heights.reserve(static_cast<std::size_t>(m_items.Length()));
  for (const CSMenuItem* row : m_items) heights.push_back(row->RowHeight());
  const qvx::LayoutPlan plan = qvx::PlanLayout(RequestLayout(client, heights));
  CarryScroll(plan.scroll);
  CMenuGroup* open = OpenChild();
  for (int i = 0; i < m_items.Length(); ++i) {
    CSMenuItem& row = *m_items.At(i);
    if (row.Line()->m_pSubMenu) row.ShowArrow(i == OpenIndex());
    PlaceRow(row, plan.rows[static_cast<std::size_t>(i)]);
    if (open && i == OpenIndex()) PlaceChild(*open, plan.child);
  }
  Invalidate();
}

void CMenuGroup::CarryScroll(const qvx::ScrollPlan& plan) {
  if (!plan.wanted) {
    if (HasScrollBar()) m_scrollBar.DestroyWindow();
    return;
  }
  const CRect bar(plan.bar);
  if (HasScrollBar())
    m_scrollBar.MoveWindow(&bar);
  else if (!m_scrollBar.Create(kScrollBarStyle, bar, this, kScrollBarId))
    return;
  m_scrollBar.SetScrollRange(0, plan.top, TRUE);
  if (m_scrollBar.GetScrollPos() != plan.pos) m_scrollBar.SetScrollPos(plan.pos);
}

void CMenuGroup::PlaceRow(CSMenuItem& row, const CRect& place) {
  if (!row.GetSafeHwnd()) return;
  CRect present;
  row.GetWindowRect(&present);
  ScreenToClient(&present);
  if (present == place) return;
  row.Invalidate();
  row.MoveWindow(&place, TRUE);
}

// A child that changes its size lays itself out as it is moved; one that does not has to be told,
// since what is inside it may have changed. It is shown last, at its place. Windows takes a
// negative height as zero.
void CMenuGroup::PlaceChild(CMenuGroup& child, const CRect& place) {
  if (!child.GetSafeHwnd()) return;
  CRect present;
  child.GetWindowRect(&present);
  ScreenToClient(&present);
  CRect wanted(place);
  if (wanted.bottom < wanted.top) wanted.bottom = wanted.top;
  if (present != wanted) child.MoveWindow(&wanted, TRUE);
  if (present.Size() == wanted.Size()) child.LayoutGroup();
  if (!(child.GetStyle() & WS_VISIBLE)) child.ShowWindow(SW_SHOW);
}

void CMenuGroup::ScrollGroup(UINT code, int position) {
  if (!HasScrollBar()) return;
  int low = 0, high = 0;
  m_scrollBar.GetScrollRange(&low, &high);
  const int pos = m_scrollBar.GetScrollPos();
  const int target = qvx::ScrollTarget(code, pos, position, low, high);
  m_scrollBar.SetScrollPos(target);
  CRect bar, client;
  m_scrollBar.GetWindowRect(&bar);
  ScreenToClient(&bar);
  GetClientRect(&client);
  const CRect area(qvx::ScrolledArea(client, g_bScrollBar > 0));
  ScrollWindow(0, pos - target, nullptr, &area);
  m_scrollBar.MoveWindow(&bar, FALSE);  // scrolling moved it with the rows
  UpdateWindow();
}

int CMenuGroup::WheelGroup(UINT, short delta, CPoint) {
  if (!HasScrollBar()) return 0;
  ScrollGroup(SB_THUMBTRACK, qvx::WheelTarget(m_scrollBar.GetScrollPos(), delta));
  return 1;
}

// Goes the way of a scroll message, default handling first, but with the whole position: a message
// would cut it to 16 bits.
void CMenuGroup::RevealRect(const CRect& rect) {
  if (!HasScrollBar()) return;
  CRect client;
  GetClientRect(&client);
  const int position = qvx::RevealShift(rect, client) + m_scrollBar.GetScrollPos();
  CWnd::OnVScroll(SB_THUMBTRACK, static_cast<UINT>(position), nullptr);
  ScrollGroup(SB_THUMBTRACK, position);
}

void CMenuGroup::OnSize(UINT type, int cx, int cy) {
  CWnd::OnSize(type, cx, cy);
  LayoutGroup();
}

// The message carries 16 bits of the position; a longer tree asks the bar itself.
void CMenuGroup::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
  CWnd::OnVScroll(code, position, bar);
  int thumb = static_cast<int>(position);
  if (code == SB_THUMBTRACK && HasScrollBar()) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_TRACKPOS;
    if (::GetScrollInfo(m_scrollBar.m_hWnd, SB_CTL, &info) && info.nMax > kMessageThumbLimit)
      thumb = info.nTrackPos;
  }
  ScrollGroup(code, thumb);
}
