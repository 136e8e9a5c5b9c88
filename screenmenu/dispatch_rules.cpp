// See dispatch_rules.h.
#include "screenmenu/dispatch_rules.h"

#include "screenmenu/row_plan.h"

namespace qvx {

ClickKind DecideClick(const TMenuItem& line) {
  if (line.m_pSubMenu) return ClickKind::kFold;
  if (line.m_pSwitch) return ClickKind::kSwitch;
  return line.IsSeparator() ? ClickKind::kNothing : ClickKind::kCommand;
}

// The name is copied: what the function does to the line is not known.
SwitchResult FlipSwitch(TMenuItem& line, LispCaller& lisp, const MenuWatch& watch) {
  const TWCString set(line.m_pSwitch->m_strSetFn);
  const bool isSet = lisp.Call(set).called;
  if (watch.IsGone()) return SwitchResult::kGone;
  if (!isSet) return SwitchResult::kRefused;
  const TSwitchStateItem* state = AskSwitch(line, lisp, watch);
  if (watch.IsGone()) return SwitchResult::kGone;
  if (!state) return SwitchResult::kUnknown;
  CopyState(*state, line);
  return SwitchResult::kChanged;
}

TWCString PendingCommand::Take(bool busy) {
  TWCString text;
  if (busy) text = kCancelPrefix;
  text += m_text;
  m_text.Empty();
  return text;
}

bool IsSendDue(unsigned timer, const PendingCommand& pending, bool hasDatabase) {
  return timer == kSendTimer && pending.IsArmed() && hasDatabase;
}

}  // namespace qvx
