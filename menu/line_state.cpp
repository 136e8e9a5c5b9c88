#include "menu/line_state.h"

namespace qvx {
namespace {

const TMenuResItem* ResourceOfLine(const TMenuItem& line, const LineSources& sources) {
  if (!sources.hasIcons || !sources.system || line.m_nIconIndex < 0) return nullptr;
  const auto& resources = sources.system->m_resources;
  return resources.IsValidIndex(line.m_nIconIndex) ? resources.At(line.m_nIconIndex) : nullptr;
}

}  // namespace

// The name is copied: the function may delete the line that holds it.
LineAnswer AskLine(const TWCString& function, const LineSources& sources) {
  LineAnswer answer;
  if (!sources.lisp) return answer;
  const TWCString name(function);
  static_cast<LispAnswer&>(answer) = sources.lisp->Call(name);
  if (!sources.watch.IsGone()) return answer;
  answer = {};
  answer.isGone = true;
  return answer;
}

bool IsLineEnabled(const TMenuItem& line, const LineSources& sources) {
  return !line.m_strCommand.IsEmpty() && !IsLineGray(line, sources);
}

bool IsLineGray(const TMenuItem& line, const LineSources& sources) {
  return (line.m_nFlags & TMenuItem::kHasGrayFn) && GivesTrue(AskLine(line.m_strGrayFn, sources));
}

bool IsLineChecked(const TMenuItem& line, const LineSources& sources) {
  return (line.m_nFlags & TMenuItem::kHasCheckFn) && GivesTrue(AskLine(line.m_strCheckFn, sources));
}

TSwitchStateItem* AskSwitch(const TMenuItem& line, const LineSources& sources) {
  const LineAnswer answer = AskLine(line.m_pSwitch->m_strGetFn, sources);
  return GivesNumber(answer) ? line.m_pSwitch->FindState(answer.number) : nullptr;
}

void CopyState(const TSwitchStateItem& state, TMenuItem& line) {
  line.m_strLabel = state.m_strLabel;
  line.m_strIconName = state.m_strIconName;
  line.m_nIconIndex = state.m_nIconIndex;
}

const wchar_t* IconOfLine(const TMenuItem& line, const LineSources& sources) {
  const TMenuResItem* resource = ResourceOfLine(line, sources);
  if (!resource) return nullptr;
  return resource->m_strImage;
}

const wchar_t* HelpOfLine(const TMenuItem& line, const LineSources& sources) {
  const TMenuResItem* resource = ResourceOfLine(line, sources);
  if (!resource) return nullptr;
  return resource->m_strImage2;
}

}  // namespace qvx
