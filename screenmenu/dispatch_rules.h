// What a click on a row comes to: a fold, a switch, a command; and how a command waits, when it
// cancels what runs, when a switch gives way. A command always wins against a running command,
// while a switch gives way to it. No window and no host: both are asked through what is passed in.
#pragma once

#include "menu/line_state.h"

namespace qvx {

constexpr unsigned kSendTimer = 10;   // on the palette's window
constexpr unsigned kSendDelay = 150;  // milliseconds
inline constexpr wchar_t kCancelPrefix[] = L"\x1B\x1B";

enum class ClickKind {
  kNothing,  // a separator that was reached
  kFold,
  kSwitch,
  kCommand,
};
ClickKind DecideClick(const TMenuItem& line);

enum class SwitchResult {
  kRefused,  // the set function failed: nothing else happens
  kUnknown,  // flipped, but the state could not be read: the caption stays
  kChanged,  // the line shows the new state
  kGone,     // a function replaced the menu: the line is no more, nor is the row that was clicked
};
// Runs the set function, then reads the state into the line. Busy hosts are the caller's to refuse.
SwitchResult FlipSwitch(TMenuItem& line, const LineSources& sources);

// One command text or none. A click overwrites what waits, so there is never more than one.
class PendingCommand {
 public:
  void Arm(const TWCString& command) { m_text = command; }
  bool IsArmed() const { return !m_text.IsEmpty(); }
  const TWCString& Text() const { return m_text; }
  // The text to send, behind the cancel prefix when the host is busy. Nothing waits any more.
  TWCString Take(bool busy);

 private:
  TWCString m_text;
};

// Without a working database the timer goes on: a command clicked while no drawing is ready is sent
// once one is.
bool IsSendDue(unsigned timer, const PendingCommand& pending, bool hasDatabase);

}  // namespace qvx
