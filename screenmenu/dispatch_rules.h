// Rules for a click on a row: fold, switch or command; when a command waits, when it cancels the
// running one, when a switch is refused. A command always cancels a running command; a switch is
// refused while one runs. No windows and no host calls.
#pragma once

#include "menu/line_state.h"

namespace qvx {

constexpr unsigned kSendTimer = 10;   // on the palette's window
constexpr unsigned kSendDelay = 150;  // milliseconds
inline constexpr wchar_t kCancelPrefix[] = L"\x1B\x1B";

enum class ClickKind {
  kNothing,  // a separator
  kFold,
  kSwitch,
  kCommand,
};
ClickKind DecideClick(const TMenuItem& line);

enum class SwitchResult {
  kRefused,  // the set function failed: nothing else happens
  kUnknown,  // flipped, but the state could not be read: the caption stays
  kChanged,  // the line shows the new state
  kGone,     // a function replaced the menu: the line and the clicked row are destroyed
};
// Runs the set function, then reads the state into the line. For a host that is not busy only.
SwitchResult FlipSwitch(TMenuItem& line, const LineSources& sources);

// One command text or none: a new click replaces a waiting command.
class PendingCommand {
 public:
  void Arm(const TWCString& command) { m_text = command; }
  bool IsArmed() const { return !m_text.IsEmpty(); }
  const TWCString& Text() const { return m_text; }
  // Returns the text to send and clears it; the cancel prefix precedes it when the host is busy.
  TWCString Take(bool busy);

 private:
  TWCString m_text;
};

// Without a working database the timer keeps running: a command clicked while no drawing is ready
// is sent once one is.
bool IsSendDue(unsigned timer, const PendingCommand& pending, bool hasDatabase);

}  // namespace qvx
