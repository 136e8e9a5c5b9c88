// CMenuGroup: building the tree from its plan, folding, switches, painting.
#include "screenmenu/win/menu_group.h"

#include <memory>

#include "kernel/globals.h"
#include "screenmenu/group_rules.h"
#include "screenmenu/palette_settings.h"

namespace {

constexpr DWORD kGroupStyle = WS_CHILD | WS_CLIPCHILDREN;  // created hidden
constexpr int kFirstRowId = 5000;  // buttons and nested groups share one sequence in each group
constexpr int kEdgeReach = 2;      // the sunken edge around an open group

qvx::TreeRequest RequestTree(GroupOwner& owner, bool limitHeight, int clientHeight) {
  qvx::TreeRequest request{};
  request.sources = {owner.Lines(), qvx::RowHeightInRange(g_iMenuRowHeight)};
  request.limitHeight = limitHeight;
  request.openFirst = g_bDefaultOpenFirst != 0;
  request.rememberedOpen = request.openFirst ? qvx::kNothingOpen : qvx::LoadActiveSubMenu();
  request.clientHeight = clientHeight;
  return request;
}

}  // namespace

IMPLEMENT_DYNAMIC(CMenuGroup, CWnd)

BEGIN_MESSAGE_MAP(CMenuGroup, CWnd)
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

CMenuGroup::CMenuGroup(TMenuBar* bar, const CRect& rect, CWnd* parent, UINT id, bool limitHeight,
                       GroupOwner* owner)
    : m_pBar(bar), m_pOwner(owner) {
  const auto plan = qvx::PlanTree(*bar, RequestTree(*owner, limitHeight, rect.Height()));
  if (!plan) return;  // the menu was replaced; the owner may be gone too
  Build(*plan, rect, parent, id);
  LayoutGroup();
}

CMenuGroup::CMenuGroup(const qvx::GroupPlan& plan, const CRect& rect, CWnd* parent, UINT id,
                       GroupOwner* owner)
    : m_pBar(plan.bar), m_pOwner(owner) {
  Build(plan, rect, parent, id);
}

CMenuGroup::~CMenuGroup() { DestroyWindow(); }

// A group whose window could not be created stays empty; the rows above it still work.
void CMenuGroup::Build(const qvx::GroupPlan& plan, const CRect& rect, CWnd* parent, UINT id) {
  m_bLimitHeight = plan.limitHeight;
  m_nContentHeight = plan.rowsHeight;
  m_nDepth = static_cast<short>(plan.depth);
  if (Create(nullptr, nullptr, kGroupStyle, rect, parent, id)) BuildRows(plan, rect);
}

// Every window is created at the place that the layout pass gives it, so that the pass moves
// nothing. The layout pass creates the scroll bar.
void CMenuGroup::BuildRows(const qvx::GroupPlan& plan, const CRect& rect) {
  const CRect client(0, 0, rect.Width(), rect.Height());
  const std::vector<int> heights = plan.RowHeights();
  qvx::GroupPlan* open = plan.OpenChild();
  const qvx::LayoutPlan layout =
      qvx::PlanLayout({client, plan.limitHeight, plan.depth == 0, qvx::ContentHeight(&plan),
                       plan.rowsHeight, g_bScrollBar ? qvx::kScrollBarWidth : 0, false, 0, &heights,
                       open ? plan.cursor : -1, qvx::ContentHeight(open)});
  int nextId = kFirstRowId;
  for (int i = 0; i < plan.bar->Length(); ++i) {
    const auto slot = static_cast<std::size_t>(i);
    auto row = std::make_unique<CSMenuItem>(plan.bar->At(i), nextId++, m_nDepth, m_pOwner);
    m_items.Append(row.get());
    row.release()->CreateRow(plan.rows[slot], layout.rows[slot], this);
    std::unique_ptr<CMenuGroup> child;
    if (const qvx::GroupPlan* nested = plan.children[slot].get()) {
      const CRect place =
          nested == open ? CRect(layout.child) : CRect(0, 0, CRect(layout.rows[slot]).Width(), 0);
      child.reset(new CMenuGroup(*nested, place, this, static_cast<UINT>(nextId++), m_pOwner));
    }
    m_children.Append(child.get());
    child.release();
  }
  m_children.GoTo(plan.cursor);
  ClipCoveredRows(layout);
}

CMenuGroup* CMenuGroup::ParentGroup() const {
  const CWnd* parent = m_hWnd ? CWnd::FromHandlePermanent(::GetParent(m_hWnd)) : nullptr;
  return const_cast<CMenuGroup*>(DYNAMIC_DOWNCAST(CMenuGroup, const_cast<CWnd*>(parent)));
}

CMenuGroup* CMenuGroup::Child(int index) {
  auto* node = m_children.IsValidIndex(index) ? m_children.NodeAt(index) : nullptr;
  return node ? node->value : nullptr;
}

CMenuGroup* CMenuGroup::OpenChild() { return Child(OpenIndex()); }

int CMenuGroup::ContentHeight() { return qvx::ContentHeight(this); }

CMenuGroup* CMenuGroup::ScrollHostOf() { return qvx::ScrollHostOf(this); }

int CMenuGroup::ClientHeight() const {
  CRect client;
  GetClientRect(&client);
  return client.Height();
}

void CMenuGroup::ToggleSubMenu(unsigned index) {
  const qvx::FoldStep step = qvx::DecideFold(index, m_children.GetLength(), OpenIndex());
  if (step == qvx::FoldStep::kNothing) return;
  m_items.At(static_cast<int>(index))->ClearHover();
  CMenuGroup* host = ScrollHostOf();
  ShowOpenChild(false);
  if (step == qvx::FoldStep::kFold) {
    m_children.GoTo(qvx::kNothingOpen);
    host->LayoutGroup();
    return;
  }
  m_children.GoTo(static_cast<int>(index));
  host->LayoutGroup();  // moves and shows the group
  CMenuGroup* opened = OpenChild();
  if (!opened || !opened->GetSafeHwnd()) return;
  CRect shown;
  opened->GetWindowRect(&shown);
  shown.top -= qvx::RowHeightInRange(g_iMenuRowHeight) + qvx::kHeaderReach;
  host->ScreenToClient(&shown);
  host->RevealRect(shown);
}

void CMenuGroup::ShowOpenChild(bool show) {
  CMenuGroup* child = OpenChild();
  if (child && child->GetSafeHwnd()) child->ShowWindow(show ? SW_SHOW : SW_HIDE);
}

// The list's cursor is the open index, so children are visited by node, which does not move it.
void CMenuGroup::RefreshSwitches() { RefreshWatched(m_pOwner->Lines()); }

void CMenuGroup::ShowLineStates() {
  for (CSMenuItem* row : m_items)
    if (row->Line()->m_pSwitch) row->ShowState();
  for (auto* node = m_children.FirstNode(); node; node = m_children.NextNode(node))
    if (node->value) node->value->ShowLineStates();
}

void CMenuGroup::ReloadImages() {
  for (CSMenuItem* row : m_items) row->ReloadImage();
  for (auto* node = m_children.FirstNode(); node; node = m_children.NextNode(node))
    if (node->value) node->value->ReloadImages();
}

// Returns at once when the menu is gone: this group is destroyed then.
void CMenuGroup::RefreshWatched(const qvx::LineSources& lines) {
  for (CSMenuItem* row : m_items) {
    if (row->Line()->m_pSwitch) RefreshSwitch(*row, lines);
    if (lines.watch.IsGone()) return;
  }
  for (auto* node = m_children.FirstNode(); node; node = m_children.NextNode(node)) {
    if (node->value) node->value->RefreshWatched(lines);
    if (lines.watch.IsGone()) return;
  }
}

void CMenuGroup::RefreshSwitch(CSMenuItem& row, const qvx::LineSources& lines) {
  if (qvx::RefreshSwitchLine(*row.Line(), lines) && row.GetSafeHwnd()) row.ShowState();
}

void CMenuGroup::OnPaint() {
  CPaintDC dc(this);
  CRect client;
  GetClientRect(&client);
  dc.FillSolidRect(&client, MenuColor(m_nDepth));
  CMenuGroup* open = OpenChild();
  if (!open || !open->GetSafeHwnd()) return;
  CRect edge;
  open->GetWindowRect(&edge);
  edge.InflateRect(kEdgeReach, kEdgeReach);
  ScreenToClient(&edge);
  dc.DrawEdge(&edge, EDGE_SUNKEN, BF_RECT);
}
