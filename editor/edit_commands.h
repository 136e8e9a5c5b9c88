// The commands of the in-place editor's pop-up menus: what each does to the text, and which of them
// close the box.
#pragma once

#include <optional>
#include <string>

#include "editor/edit_control.h"

namespace qvx {

// Menu identifiers. Any other from 5001 to 6000 does nothing.
enum EditCommand : int {
  kCommandCommit = 5001,
  kCommandCancel = 5002,
  kCommandObjectEdit = 5003,
  kCommandSubscript = 5004,
  kCommandSuperscript = 5005,
  kCommandCircle = 5006,
  kCommandDegree = 5007,
  kCommandPlusMinus = 5008,
  kCommandDiameter = 5009,
  kCommandPercent = 5010,
  kCommandSteel1 = 5011,
  kCommandSteel2 = 5012,
  kCommandSteel3 = 5013,
  kCommandSteel4 = 5014,
  kCommandSpecialCharacter = 5015,
  kCommandWord = 5016,
  kCommandAppendMark = 5018,
  kCommandAxisNumbers = 5019,
  kCommandBatchLabel = 5020,
  kCommandWindowLabel = 5021,
  kCommandCell = 5022,
  kCommandEmpty = 5023,
  kCommandCornerMark = 5024,
};

// The block of the menu file for a fragment's menu type.
std::wstring MenuNameOf(int menuType);

// A text that replaces the box's, and the caret in it.
struct TextChange {
  std::wstring text;
  int caret = 0;
};
// Nothing for commands that close the box, show a dialog or do not exist. A range beyond the text
// is cut.
std::optional<TextChange> ChangeByCommand(int command, const std::wstring& text, TextRange range);
TextChange ReplaceRange(const std::wstring& text, TextRange range, const std::wstring& by);

// A command that closes the box.
struct ClosingCommand {
  enum class Text { kKept, kMarkAppended, kEmptied };
  int command;
  bool commits;                // or cancels
  Text text;                   // before the commit; kKept leaves the modified flag
  bool picksObject;            // makes the object the pick-first set
  const wchar_t* hostCommand;  // sent after the box has closed; null for none
  bool byFullName;             // or the text as it is
};
const ClosingCommand* FindClosingCommand(int command);  // null for any other

}  // namespace qvx
