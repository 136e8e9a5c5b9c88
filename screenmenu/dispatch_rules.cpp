// See dispatch_rules.h.
#include "screenmenu/dispatch_rules.h"

#include "screenmenu/row_plan.h"

namespace qvx {

ClickKind DecideClick(const TMenuItem& line) {
  if (line.m_pSubMenu) return ClickKind::kFold;
  if (line.m_pSwitch) return ClickKind::kSwitch;
  return line.IsSeparator() ? ClickKind::kNothing : ClickKind::kCommand;
}

bool IsBusy(const HostActivity& host) { return host.active != 0 || !host.names.IsEmpty(); }

SwitchResult FlipSwitch(TMenuItem& line, LispCaller& lisp) {
  if (!lisp.Call(line.m_pSwitch->m_strSetFn).called) return SwitchResult::kRefused;
  const TSwitchStateItem* state = AskSwitch(line, lisp);
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
