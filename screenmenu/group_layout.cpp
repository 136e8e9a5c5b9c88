// See group_layout.h.
#include "screenmenu/group_layout.h"

#include <algorithm>

#include "screenmenu/group_rules.h"

namespace qvx {
namespace {

constexpr int kDockedTop = 3;      // above the root group of a docked palette
constexpr int kPaletteBottom = 2;  // below the root group

// A tree exactly as tall as the window needs no bar.
ScrollPlan PlanScroll(const LayoutRequest& request, int& width) {
  ScrollPlan plan;
  const int height = request.client.bottom - request.client.top;
  if (!request.scrolls || request.limitHeight || request.total <= height) return plan;
  plan.wanted = true;
  width -= request.barWidth;
  plan.bar = request.client;
  plan.bar.left = plan.bar.right - request.barWidth;
  plan.top = request.total - height;
  plan.pos = request.hasBar ? std::min(request.scrollPos, plan.top) : 0;
  return plan;
}

}  // namespace

LayoutPlan PlanLayout(const LayoutRequest& request) {
  LayoutPlan plan;
  int width = request.client.right - request.client.left;
  plan.scroll = PlanScroll(request, width);
  int y = kTopMargin - plan.scroll.pos;
  plan.rows.reserve(request.heights->size());
  for (int i = 0; i < static_cast<int>(request.heights->size()); ++i) {
    const int height = (*request.heights)[static_cast<std::size_t>(i)];
    plan.rows.push_back({0, y, width, y + height});
    y += height;
    if (i != request.openIndex) continue;
    int child = request.childHeight;
    if (request.limitHeight)
      child = request.client.bottom - request.client.top - request.rowsHeight - kGroupMargin;
    plan.child = {0, y + kChildGap, width, y + kChildGap + child};
    y += kGroupMargin + child;
  }
  plan.end = y;
  return plan;
}

RECT FirstRootGroup(const RECT& used, bool floating) {
  return {used.left, used.top + (floating ? 0 : kDockedTop), used.right,
          used.bottom - kPaletteBottom};
}

bool RowsOverlap(const LayoutPlan& plan) {
  for (std::size_t i = 1; i < plan.rows.size(); ++i)
    if (plan.rows[i].top < plan.rows[i - 1].bottom) return true;
  return false;
}

RECT FitRootGroup(const RECT& used, bool floating, int windowBottom) {
  RECT fit = used;
  if (!floating) {
    fit.top += kDockedTop;
    fit.bottom = windowBottom;
  }
  fit.bottom -= kPaletteBottom;
  return fit;
}

}  // namespace qvx
