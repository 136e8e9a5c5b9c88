// Parts of a label that are lost, and the icon name before it.
#include <algorithm>

#include "tools/qmn/check/line_rules.h"

namespace {

constexpr char32_t kMark[] = U"*switch*";

bool IsMark(std::u32string_view label) {
  if (label.size() != 8) return false;
  for (size_t i = 0; i < 8; ++i) {
    const char32_t c = label[i];
    if ((c >= U'A' && c <= U'Z' ? c + 32 : c) != kMark[i]) return false;
  }
  return true;
}

bool ShowsMark(const TWCString& label) {
  std::u32string text;
  for (const wchar_t unit : TextOf(label)) text += static_cast<char32_t>(unit);
  while (!text.empty() && (text.front() == U' ' || text.front() == U'\t')) text.erase(0, 1);
  while (!text.empty() && (text.back() == U' ' || text.back() == U'\t')) text.pop_back();
  return IsMark(text);
}

void CheckTabs(const LineView& line) {
  if (!line.IsPopUp()) return;
  const size_t first = line.Label().find(U'\t');
  const size_t last = line.Label().rfind(U'\t');
  if (first != last)
    line.AddInLabel(Rule::kLabelTabs, first, last + 1,
                    "in a pop-up, what stands between the first and the last tab is not shown"_say);
}

// In the screen menu a label is drawn in one piece.
void CheckAccelerator(const LineView& line) {
  const size_t tab = line.Label().find(U'\t');
  if (line.IsPopUp() || tab == LineView::kNone) return;
  line.AddInLabel(Rule::kAcceleratorScreen, tab, line.Label().size(),
                  "the screen menu does not align the text behind a tab; it touches the label"_say);
}

bool IsDash(wchar_t unit) {
  return unit == L'-' || unit == L' ' || unit == 0x2014 || unit == 0x2500 || unit == 0xFF0D;
}

void CheckDashes(const LineView& line) {
  if (IsOnlyDashes(line.Item()))
    line.AddLabel(Rule::kDashes, "only [--] is a separator; this line shows its dashes"_say);
}

void CheckMark(const LineView& line) {
  const bool isMark = IsMark(line.Label().substr(2 * static_cast<size_t>(PairsOf(line.Label()))));
  if (!isMark || line.Item().m_pSubMenu) {
    line.AddLabel(Rule::kSwitchMark,
                  line.Item().m_pSubMenu
                      ? "a line that opens a sub-menu is no switch and shows *SWITCH* itself"_say
                      : "*SWITCH* must be the whole label; this line shows it as it stands"_say);
    return;
  }
  if (!line.Source().icon) {
    line.AddLabel(Rule::kSwitchUndefined,
                  "a *SWITCH* line needs the name of its switch in front of the '['"_say);
    return;
  }
  line.AddIcon(Rule::kSwitchUndefined, "switch '{0}' is not defined in ***SWITCH"_say(
                                           line.Context().Text(*line.Source().icon)));
}

}  // namespace

bool IsOnlyDashes(const TMenuItem& item) {
  const std::wstring_view label = TextOf(item.m_strLabel);
  return !item.IsSeparator() && label.find_first_not_of(L' ') != label.npos &&
         std::all_of(label.begin(), label.end(), IsDash);
}

bool ShowsSwitchMark(const TMenuItem& item) {
  return !item.m_pSwitch && ShowsMark(item.m_strLabel);
}

void CheckLabel(const LineView& line) {
  if (line.Item().m_strLabel.IsEmpty())
    line.AddLabel(Rule::kLabelEmpty, "the line shows no text"_say);
  CheckTabs(line);
  CheckAccelerator(line);
  CheckDashes(line);
  if (!line.Item().m_pSwitch && ShowsMark(line.Item().m_strLabel)) CheckMark(line);
}

void CheckIconName(const LineView& line) {
  const TMenuItem& item = line.Item();
  if (!line.Source().icon || item.m_pSwitch || item.m_nIconIndex >= 0) return;
  if (item.IsSeparator() || ShowsMark(item.m_strLabel)) return;
  line.AddIcon(Rule::kIconUndefined, "icon '{0}' is not defined in ***RESOURCE"_say(
                                         line.Context().Text(*line.Source().icon)));
}
