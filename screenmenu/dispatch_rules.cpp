// See dispatch_rules.h.
#include "screenmenu/dispatch_rules.h"

namespace qvx {

ClickKind DecideClick(const TMenuItem& line) {
  if (line.m_pSubMenu) return ClickKind::kFold;
  if (line.m_pSwitch) return ClickKind::kSwitch;
  return line.IsSeparator() ? ClickKind::kNothing : ClickKind::kCommand;
}

SwitchResult FlipSwitch(TMenuItem& line, const LineSources& sources) {
  const LineAnswer set = AskLine(line.m_pSwitch->m_strSetFn, sources);
  if (set.isGone) return SwitchResult::kGone;
  if (!set.called) return SwitchResult::kRefused;
  const TSwitchStateItem* state = AskSwitch(line, sources);
  if (sources.watch.IsGone()) return SwitchResult::kGone;
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
