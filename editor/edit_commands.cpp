#include "editor/edit_commands.h"

#include <algorithm>

namespace qvx {
namespace {

enum class Placing {
  kAround,   // before and after the selection
  kReplace,  // in its place
};

struct Insertion {
  int command;
  Placing placing;
  const wchar_t* sequence;  // of the kernel's text objects
};

constexpr Insertion kInsertions[] = {
    {kCommandSubscript, Placing::kAround, L"^L"},  {kCommandSuperscript, Placing::kAround, L"^U"},
    {kCommandCircle, Placing::kAround, L"^C"},     {kCommandCornerMark, Placing::kAround, L"^X"},
    {kCommandDegree, Placing::kReplace, L"%%d"},   {kCommandPlusMinus, Placing::kReplace, L"%%p"},
    {kCommandDiameter, Placing::kReplace, L"%%c"}, {kCommandPercent, Placing::kReplace, L"%%%"},
    {kCommandSteel1, Placing::kReplace, L"^1"},    {kCommandSteel2, Placing::kReplace, L"^2"},
    {kCommandSteel3, Placing::kReplace, L"^3"},    {kCommandSteel4, Placing::kReplace, L"^4"},
};

using Text = ClosingCommand::Text;
constexpr ClosingCommand kClosing[] = {
    {kCommandCommit, true, Text::kKept, false, nullptr, false},
    {kCommandCancel, false, Text::kKept, false, nullptr, false},
    {kCommandObjectEdit, false, Text::kKept, true, L"TObjEdit", true},
    {kCommandAppendMark, true, Text::kMarkAppended, false, nullptr, false},
    {kCommandAxisNumbers, true, Text::kKept, true, L"TRevAxno", false},
    {kCommandBatchLabel, true, Text::kKept, true, L"TBatLabel", true},
    {kCommandWindowLabel, false, Text::kKept, true, L"TChWinLab", true},
    {kCommandCell, false, Text::kKept, false, L"TCellEdit", true},
    {kCommandEmpty, true, Text::kEmptied, false, nullptr, false},
};

TextRange Cut(TextRange range, const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  const int start = std::clamp(range.start, 0, length);
  return {start, std::clamp(range.end, start, length)};
}

TextChange PutAround(const std::wstring& text, TextRange range, const std::wstring& sequence) {
  const auto [start, end] = Cut(range, text);
  const int count = static_cast<int>(sequence.size());
  TextChange change{text, end + 2 * count};
  change.text.insert(static_cast<size_t>(start), sequence);
  change.text.insert(static_cast<size_t>(end + count), sequence);
  return change;
}

}  // namespace

std::wstring MenuNameOf(int menuType) {
  constexpr int kNumberedMenus = 7;
  const std::wstring name = L"INPLACE";
  return menuType >= 1 && menuType <= kNumberedMenus ? name + std::to_wstring(menuType) : name;
}

TextChange ReplaceRange(const std::wstring& text, TextRange range, const std::wstring& by) {
  const auto [start, end] = Cut(range, text);
  TextChange change{text, start + static_cast<int>(by.size())};
  change.text.replace(static_cast<size_t>(start), static_cast<size_t>(end - start), by);
  return change;
}

std::optional<TextChange> ChangeByCommand(int command, const std::wstring& text, TextRange range) {
  const auto row = std::ranges::find(kInsertions, command, &Insertion::command);
  if (row == std::end(kInsertions)) return std::nullopt;
  return row->placing == Placing::kAround ? PutAround(text, range, row->sequence)
                                          : ReplaceRange(text, range, row->sequence);
}

const ClosingCommand* FindClosingCommand(int command) {
  const auto row = std::ranges::find(kClosing, command, &ClosingCommand::command);
  return row == std::end(kClosing) ? nullptr : row;
}

}  // namespace qvx
