// See group_plan.h.
#include "screenmenu/group_plan.h"

#include "screenmenu/group_rules.h"

namespace qvx {
namespace {

std::unique_ptr<GroupPlan> PlanGroup(TMenuBar& bar, GroupPlan* parent, const TreeRequest& request) {
  auto group = std::make_unique<GroupPlan>();
  group->bar = &bar;
  group->parent = parent;
  group->depth = parent ? parent->depth + 1 : 0;
  group->limitHeight = !parent && request.limitHeight;
  group->clientHeight = parent ? 0 : request.clientHeight;
  for (int i = 0; i < bar.Length(); ++i) {
    TMenuItem& line = *bar.At(i);
    group->rows.push_back(PlanRow(line, request.sources));
    if (request.sources.lines.watch.IsGone()) return nullptr;
    group->rowsHeight += group->rows.back().height;
    const bool nests = line.m_pSubMenu && group->depth < kDeepestGroup;
    group->children.push_back(nests ? PlanGroup(*line.m_pSubMenu, group.get(), request) : nullptr);
    if (request.sources.lines.watch.IsGone()) return nullptr;
  }
  group->rowsHeight += kGroupMargin;
  const int wanted =
      OpenIndexAtStart(request.openFirst, group->depth, [&] { return request.rememberedOpen; });
  group->cursor = RestOfCursor(wanted, bar.Length());
  return group;
}

}  // namespace

GroupPlan* GroupPlan::OpenChild() const {
  return cursor < 0 ? nullptr : children[static_cast<std::size_t>(cursor)].get();
}

std::vector<int> GroupPlan::RowHeights() const {
  std::vector<int> heights;
  heights.reserve(rows.size());
  for (const RowPlan& row : rows) heights.push_back(row.height);
  return heights;
}

std::unique_ptr<GroupPlan> PlanTree(TMenuBar& bar, const TreeRequest& request) {
  return PlanGroup(bar, nullptr, request);
}

}  // namespace qvx
