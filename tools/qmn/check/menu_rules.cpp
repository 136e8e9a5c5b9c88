// Rules about the lines of one menu together: separators, and lines that are there twice.
#include <map>
#include <string>
#include <tuple>

#include "tools/qmn/check/line_rules.h"

namespace {

class SeparatorRules {
 public:
  explicit SeparatorRules(bool isToolBar) : m_isToolBar(isToolBar) {}

  void Check(const LineView& line) {
    const int bar = line.Model().bar;
    const auto [last, isFirst] = m_last.try_emplace(bar, Last::kNothing);
    if (line.Item().IsSeparator()) {
      // The separators of ToolBar move one place down, so that a first one becomes the second line.
      const bool mayLead = m_isToolBar && bar == 0;
      if (last->second == Last::kSeparator)
        line.AddLabel(Rule::kSeparatorPlace, "there is a separator on the line before already"_say);
      else if (isFirst && !mayLead)
        line.AddLabel(Rule::kSeparatorPlace,
                      "a separator has nothing to separate as the first line of its menu"_say);
      last->second = Last::kSeparator;
    } else {
      last->second = Last::kLine;
    }
  }

 private:
  enum class Last { kNothing, kLine, kSeparator };
  bool m_isToolBar;
  std::map<int, Last> m_last;  // by menu
};

class TwiceRules {
 public:
  void Check(const LineView& line) {
    const TMenuItem& item = line.Item();
    if (item.IsSeparator() || item.m_strLabel.IsEmpty() || !line.HasBracket()) return;
    if (KeepsArrow(item)) return;
    const size_t place = line.Source().line.begin;
    const auto [first, isNew] =
        m_first.try_emplace(Key{line.Model().bar, std::wstring(TextOf(item.m_strLabel)),
                                std::wstring(TextOf(item.m_strCommand)),
                                std::wstring(TextOf(item.m_strCheckFn)) + L'\n' +
                                    std::wstring(TextOf(item.m_strGrayFn)),
                                item.m_pSwitch},
                            place);
    if (isNew) return;
    line.AddLabel(Rule::kLineTwice, "this line is there already, on line {0}"_say(
                                        line.Context().source.LineOf(first->second)));
  }

 private:
  using Key = std::tuple<int, std::wstring, std::wstring, std::wstring, const TMenuSwitchItem*>;
  std::map<Key, size_t> m_first;
};

}  // namespace

void CheckMenus(const std::vector<LineView>& lines, bool isToolBar) {
  SeparatorRules separators(isToolBar);
  TwiceRules twice;
  for (const LineView& line : lines) {
    separators.Check(line);
    twice.Check(line);
  }
}
