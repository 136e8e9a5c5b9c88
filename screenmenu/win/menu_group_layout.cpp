// CMenuGroup: layout and scrolling, as group_layout and scroll_rules decide.
#include "kernel/globals.h"
#include "screenmenu/group_rules.h"
#include "screenmenu/win/menu_group.h"
#include "screenmenu/scroll_rules.h"

namespace {

constexpr UINT kScrollBarId = 100;
constexpr DWORD kScrollBarStyle = WS_CHILD | WS_VISIBLE | SBS_VERT;
constexpr int kMessageThumbLimit = 0xFFFF;  // limit of the 16-bit position of WM_VSCROLL

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

qvx::LayoutPlan CMenuGroup::PlanNow(const CRect& client) {
  std::vector<int> heights;
  heights.reserve(static_cast<std::size_t>(m_items.Length()));
  for (const CSMenuItem* row : m_items) heights.push_back(row->RowHeight());
  return qvx::PlanLayout(RequestLayout(client, heights));
}

// Moves rows and the open group without redrawing, then redraws the changed area once. A repaint
// with each move costs six requests to the window server for each row.
void CMenuGroup::LayoutGroup() {
  if (!m_hWnd) return;
  CRect client;
  GetClientRect(&client);
  const qvx::LayoutPlan plan = PlanNow(client);
  CarryScroll(plan.scroll);
  m_isScrolledPast = false;
  ClipCoveredRows(plan);
  CMenuGroup* open = OpenChild();
  CRect changed(0, 0, 0, 0);
  for (int i = 0; i < m_items.Length(); ++i) {
    CSMenuItem& row = *m_items.At(i);
    if (row.Line()->m_pSubMenu) row.ShowArrow(i == OpenIndex());
    PlaceRow(row, plan.rows[static_cast<std::size_t>(i)], changed);
    if (open && i == OpenIndex()) PlaceChild(*open, plan.child, changed);
  }
  Invalidate();
  if (!changed.IsRectEmpty())
    RedrawWindow(&changed, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Where the rows exceed a limited height, those after the open header overlap those before it.
// Clipped by its siblings, a row paints only where it also receives clicks: the earlier row is on
// top.
void CMenuGroup::ClipCoveredRows(const qvx::LayoutPlan& plan) {
  if (!qvx::RowsOverlap(plan) || m_items.Length() == 0 ||
      (m_items.At(0)->GetStyle() & WS_CLIPSIBLINGS))
    return;
  for (CSMenuItem* row : m_items) row->ModifyStyle(0, WS_CLIPSIBLINGS);
}

void CMenuGroup::CarryScroll(const qvx::ScrollPlan& plan) {
  if (!plan.wanted) {
    if (HasScrollBar()) m_scrollBar.DestroyWindow();
    return;
  }
  const CRect bar(plan.bar);
  if (!HasScrollBar()) {
    if (!m_scrollBar.Create(kScrollBarStyle, bar, this, kScrollBarId)) return;
  } else if (!PlaceOf(m_scrollBar).EqualRect(&bar)) {
    m_scrollBar.MoveWindow(&bar);
  }
  SetScroll(plan.top, plan.pos);
}

// Sets range and position in one call, and only if they changed. The bar is drawn later with the
// rest: bringing a group into view moves it once more before.
void CMenuGroup::SetScroll(int top, int pos) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_POS;
  m_scrollBar.SendMessage(SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(&info));
  if (info.nMin == 0 && info.nMax == top && info.nPos == pos) return;
  info.nMin = 0;
  info.nMax = top;
  info.nPos = pos;
  m_scrollBar.SendMessage(SBM_SETSCROLLINFO, FALSE, reinterpret_cast<LPARAM>(&info));
  m_scrollBar.Invalidate(FALSE);
}

CRect CMenuGroup::PlaceOf(CWnd& child) const {
  CRect place;
  child.GetWindowRect(&place);
  ScreenToClient(&place);
  return place;
}

void CMenuGroup::PlaceRow(CSMenuItem& row, const CRect& place, CRect& changed) {
  if (!row.GetSafeHwnd()) return;
  const CRect present = PlaceOf(row);
  if (present.EqualRect(&place)) return;
  MoveUnseen(row, place);
  changed.UnionRect(changed, present);
  changed.UnionRect(changed, place);
}

void CMenuGroup::MoveUnseen(CWnd& child, const CRect& place) {
  ::SetWindowPos(child.m_hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS | SWP_DEFERERASE);
}

// Moving a child to another size lays it out; with the same size LayoutGroup is called, since its
// contents may have changed. The child is shown last, at its place. Windows treats a negative
// height as zero.
void CMenuGroup::PlaceChild(CMenuGroup& child, const CRect& place, CRect& changed) {
  if (!child.GetSafeHwnd()) return;
  const CRect present = PlaceOf(child);
  CRect wanted(place);
  if (wanted.bottom < wanted.top) wanted.bottom = wanted.top;
  const bool shown = (child.GetStyle() & WS_VISIBLE) != 0;
  if (!present.EqualRect(&wanted)) {
    MoveUnseen(child, wanted);
    if (shown) changed.UnionRect(changed, present);
    changed.UnionRect(changed, wanted);
  }
  if (present.Width() == wanted.Width() && present.Height() == wanted.Height()) child.LayoutGroup();
  if (!shown) child.ShowWindow(SW_SHOW);
}

// Scrolls the pixels and moves the windows of the rows in and near the view only: moving each of a
// thousand rows at each step makes the wheel lag. Rows farther away stay misplaced, out of view,
// until they come near, until the next layout pass, or until SettleRows.
void CMenuGroup::ScrollGroup(UINT code, int position) {
  if (!HasScrollBar()) return;
  int low = 0, high = 0;
  m_scrollBar.GetScrollRange(&low, &high);
  const int pos = m_scrollBar.GetScrollPos();
  const int target = qvx::ScrollTarget(code, pos, position, low, high);
  if (target != pos) {
    m_scrollBar.SetScrollPos(target);
    const CRect bar = PlaceOf(m_scrollBar);
    CRect client;
    GetClientRect(&client);
    const CRect area(qvx::ScrolledArea(client, g_bScrollBar > 0));
    const CRect zone(qvx::NearView(area));
    ::ScrollWindowEx(m_hWnd, 0, pos - target, &zone, &area, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    if (!PlaceOf(m_scrollBar).EqualRect(&bar)) m_scrollBar.MoveWindow(&bar, FALSE);
    BringNear(zone, area);
    m_isScrolledPast = true;
  }
  UpdateWindow();
}

// Moves rows into the zone near the view that were too far away to be moved before.
void CMenuGroup::BringNear(const CRect& zone, const CRect& view) {
  CRect client, changed(0, 0, 0, 0), seen;
  GetClientRect(&client);
  const qvx::LayoutPlan plan = PlanNow(client);
  for (int i = 0; i < m_items.Length(); ++i) {
    const CRect place(plan.rows[static_cast<std::size_t>(i)]);
    if (seen.IntersectRect(place, zone)) PlaceRow(*m_items.At(i), place, changed);
  }
  CMenuGroup* open = OpenChild();
  if (open && open->GetSafeHwnd() && seen.IntersectRect(CRect(plan.child), zone) &&
      !PlaceOf(*open).EqualRect(&plan.child))
    PlaceChild(*open, plan.child, changed);
  if (seen.IntersectRect(changed, view))
    RedrawWindow(&seen, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Affects only rows out of view, so nothing is drawn. A scrolling group moves its own rows only:
// what is below an open child moves with that child's window.
void CMenuGroup::SettleRows() {
  if (!m_isScrolledPast || !m_hWnd) return;
  m_isScrolledPast = false;
  CRect client, unseen(0, 0, 0, 0);
  GetClientRect(&client);
  const qvx::LayoutPlan plan = PlanNow(client);
  for (int i = 0; i < m_items.Length(); ++i)
    PlaceRow(*m_items.At(i), plan.rows[static_cast<std::size_t>(i)], unseen);
  CMenuGroup* open = OpenChild();
  if (open && open->GetSafeHwnd() && !PlaceOf(*open).EqualRect(&plan.child))
    PlaceChild(*open, plan.child, unseen);
}

int CMenuGroup::WheelGroup(UINT, short delta, CPoint) {
  if (!HasScrollBar()) return 0;
  ScrollGroup(SB_THUMBTRACK, qvx::WheelTarget(m_scrollBar.GetScrollPos(), delta));
  return 1;
}

// Same steps as a scroll message, default handling first, but with the whole position: a message
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

// The message carries 16 bits of the position; for a longer tree the position is read from the bar.
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
