// See row_plan.h.
#include "screenmenu/row_plan.h"

namespace qvx {
namespace {

constexpr int kSeparatorShare = 3;  // a separator is a third of a row high, the rest cut off

const TMenuResItem* ResourceOfLine(const TMenuItem& line, const TMenuSystem* system,
                                   bool hasIcons) {
  if (!hasIcons || !system || line.m_nIconIndex < 0) return nullptr;
  const auto& resources = system->m_resources;
  return resources.IsValidIndex(line.m_nIconIndex) ? resources.At(line.m_nIconIndex) : nullptr;
}

// The name is copied: what the function does to the line is not known.
LispAnswer Ask(LispCaller& lisp, const TWCString& function) {
  const TWCString name(function);
  return lisp.Call(name);
}

void PlanIcon(const TMenuItem& line, const RowSources& sources, RowPlan& plan) {
  const wchar_t* bitmap = IconOfLine(line, sources);
  plan.image = bitmap ? RowImage::kFromLibrary : RowImage::kNone;
  plan.bitmap = bitmap ? bitmap : L"";
}

}  // namespace

RowPlan PlanRow(TMenuItem& line, const RowSources& sources) {
  RowPlan plan{L"", sources.rowHeight - 1, true, RowImage::kNone, L""};
  if (line.m_pSubMenu) {
    plan.image = RowImage::kArrow;
  } else if (line.m_pSwitch) {
    const TSwitchStateItem* state = AskSwitch(line, *sources.lisp, sources.watch);
    if (sources.watch.IsGone()) return {};
    if (state) CopyState(*state, line);
    plan.enabled = state != nullptr;
    PlanIcon(line, sources, plan);
  } else if (line.IsSeparator()) {
    plan.height /= kSeparatorShare;
    plan.enabled = false;
    return plan;
  } else if (line.m_nFlags & TMenuItem::kHasCheckFn) {
    plan.enabled = IsLineEnabled(line, *sources.lisp);
    if (sources.watch.IsGone()) return {};
    const bool checked = GivesTrue(Ask(*sources.lisp, line.m_strCheckFn));
    if (sources.watch.IsGone()) return {};
    plan.image = checked ? RowImage::kCheckMark : RowImage::kNone;
  } else {
    plan.enabled = IsLineEnabled(line, *sources.lisp);
    if (sources.watch.IsGone()) return {};
    PlanIcon(line, sources, plan);
  }
  plan.caption = line.m_strLabel;
  return plan;
}

bool IsLineEnabled(const TMenuItem& line, LispCaller& lisp) {
  if (line.m_strCommand.IsEmpty()) return false;
  if (!(line.m_nFlags & TMenuItem::kHasGrayFn)) return true;
  return !GivesTrue(Ask(lisp, line.m_strGrayFn));
}

TSwitchStateItem* AskSwitch(const TMenuItem& line, LispCaller& lisp, const MenuWatch& watch) {
  const LispAnswer answer = Ask(lisp, line.m_pSwitch->m_strGetFn);
  if (watch.IsGone()) return nullptr;
  return GivesNumber(answer) ? line.m_pSwitch->FindState(answer.number) : nullptr;
}

void CopyState(const TSwitchStateItem& state, TMenuItem& line) {
  line.m_strLabel = state.m_strLabel;
  line.m_strIconName = state.m_strIconName;
  line.m_nIconIndex = state.m_nIconIndex;
}

bool RefreshSwitchLine(TMenuItem& line, LispCaller& lisp, const MenuWatch& watch) {
  const TSwitchStateItem* state = AskSwitch(line, lisp, watch);
  if (!state || state->m_nIconIndex == line.m_nIconIndex) return false;
  CopyState(*state, line);
  return true;
}

const wchar_t* IconOfLine(const TMenuItem& line, const RowSources& sources) {
  const TMenuResItem* resource = ResourceOfLine(line, sources.system, sources.hasIcons);
  return resource ? resource->m_strImage.c_str() : nullptr;
}

const wchar_t* HelpOfLine(const TMenuItem& line, const TMenuSystem* system, bool hasIcons) {
  const TMenuResItem* resource = ResourceOfLine(line, system, hasIcons);
  return resource ? resource->m_strImage2.c_str() : nullptr;
}

}  // namespace qvx
