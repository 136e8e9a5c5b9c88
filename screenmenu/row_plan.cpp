// See row_plan.h.
#include "screenmenu/row_plan.h"

namespace qvx {
namespace {

constexpr int kSeparatorShare = 3;  // a separator has a third of the row height, rounded down

void PlanIcon(const TMenuItem& line, const LineSources& sources, RowPlan& plan) {
  const wchar_t* bitmap = IconOfLine(line, sources);
  plan.image = bitmap ? RowImage::kFromLibrary : RowImage::kNone;
  plan.bitmap = bitmap ? bitmap : L"";
}

}  // namespace

RowPlan PlanRow(TMenuItem& line, const RowSources& sources) {
  const LineSources& lines = sources.lines;
  RowPlan plan{L"", sources.rowHeight - 1, true, RowImage::kNone, L""};
  if (line.m_pSubMenu) {
    plan.image = RowImage::kArrow;
  } else if (line.m_pSwitch) {
    const TSwitchStateItem* state = AskSwitch(line, lines);
    if (lines.watch.IsGone()) return {};
    if (state) CopyState(*state, line);
    plan.enabled = state != nullptr;
    PlanIcon(line, lines, plan);
  } else if (line.IsSeparator()) {
    plan.height /= kSeparatorShare;
    plan.enabled = false;
    return plan;
  } else {
    plan.enabled = IsLineEnabled(line, lines);
    if (lines.watch.IsGone()) return {};
    if (line.m_nFlags & TMenuItem::kHasCheckFn) {
      const bool checked = IsLineChecked(line, lines);
      if (lines.watch.IsGone()) return {};
      plan.image = checked ? RowImage::kCheckMark : RowImage::kNone;
    } else {
      PlanIcon(line, lines, plan);
    }
  }
  plan.caption = line.m_strLabel;
  return plan;
}

bool RefreshSwitchLine(TMenuItem& line, const LineSources& sources) {
  const TSwitchStateItem* state = AskSwitch(line, sources);
  if (!state || state->m_nIconIndex == line.m_nIconIndex) return false;
  CopyState(*state, line);
  return true;
}

}  // namespace qvx
