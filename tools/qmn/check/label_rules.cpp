// Parts of a label that are lost, and the icon name before it.
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
                    "in a pop-up, what stands between the first and the last tab is not shown");
}

void CheckMark(const LineView& line) {
  const bool isMark = IsMark(line.Label().substr(2 * static_cast<size_t>(PairsOf(line.Label()))));
  if (!isMark || line.Item().m_pSubMenu) {
    line.AddLabel(Rule::kSwitchMark,
                  line.Item().m_pSubMenu
                      ? "a line that opens a sub-menu is no switch and shows *SWITCH* itself"
                      : "*SWITCH* must be the whole label; this line shows it as it stands");
    return;
  }
  if (!line.Source().icon) {
    line.AddLabel(Rule::kSwitchUndefined,
                  "a *SWITCH* line needs the name of its switch in front of the '['");
    return;
  }
  line.AddIcon(Rule::kSwitchUndefined, "switch '" + line.Context().Text(*line.Source().icon) +
                                           "' is not defined in ***SWITCH");
}

}  // namespace

void CheckLabel(const LineView& line) {
  if (line.Item().m_strLabel.IsEmpty()) line.AddLabel(Rule::kLabelEmpty, "the line shows no text");
  CheckTabs(line);
  if (!line.Item().m_pSwitch && ShowsMark(line.Item().m_strLabel)) CheckMark(line);
}

void CheckIconName(const LineView& line) {
  const TMenuItem& item = line.Item();
  if (!line.Source().icon || item.m_pSwitch || item.m_nIconIndex >= 0) return;
  if (item.IsSeparator() || ShowsMark(item.m_strLabel)) return;
  line.AddIcon(Rule::kIconUndefined, "icon '" + line.Context().Text(*line.Source().icon) +
                                         "' is not defined in ***RESOURCE");
}
