// Compares the model of a decompiled source with the model it was made from. They differ where the
// passes change a field, a name resolves to something else, or a line cannot express a text.
#include <optional>
#include <sstream>
#include <string_view>
#include <unordered_map>

#include "menu/menu_model.h"
#include "tools/qmn/decompile_source.h"
#include "tools/qmn/json_out.h"

namespace {

std::string Quoted(const TWCString& text) {
  std::ostringstream out;
  JsonOut(out).Text({text, static_cast<size_t>(text.Length())});
  return out.str();
}

class Comparison {
 public:
  Comparison(TMenuSystem& wanted, TMenuSystem& made, Refusals& refusals)
      : m_wanted(wanted),
        m_made(made),
        m_wantedSwitches(IndexOf(wanted)),
        m_madeSwitches(IndexOf(made)),
        m_refusals(refusals) {}

  void Run() {
    for (int i = 0; i < m_wanted.m_switches.Length(); ++i) States(i);
    for (int i = 0; i < m_wanted.Length(); ++i) Lines(i);
  }

 private:
  void States(int index) {
    const auto& wanted = m_wanted.m_switches.At(index)->m_states;
    const auto& made = m_made.m_switches.At(index)->m_states;
    for (int i = 0; i < wanted.Length(); ++i)
      if (const int to = made.At(i)->m_nIconIndex; wanted.At(i)->m_nIconIndex != to)
        m_refusals.Add(PlaceOfState(m_wanted, index, i),
                       Index("icon index"_say, wanted.At(i)->m_nIconIndex, to));
  }

  void Lines(int block) {
    MenuWalk wanted(*m_wanted.At(block)), made(*m_made.At(block));
    int number = 0;
    for (;; ++number) {
      const TMenuItem* a = wanted.Next();
      const TMenuItem* b = made.Next();
      if (!a || !b) return;
      if (const auto difference = Difference(*a, *b))
        m_refusals.Add(PlaceOfLine(m_wanted, block, number), *difference);
    }
  }

  std::optional<Message> Difference(const TMenuItem& wanted, const TMenuItem& made) const {
    if (wanted.m_strLabel != made.m_strLabel)
      return Text("label"_say, wanted.m_strLabel, made.m_strLabel);
    if (wanted.m_strCommand != made.m_strCommand)
      return Text("command"_say, wanted.m_strCommand, made.m_strCommand);
    if (wanted.m_strCheckFn != made.m_strCheckFn)
      return Text("check function"_say, wanted.m_strCheckFn, made.m_strCheckFn);
    if (wanted.m_strGrayFn != made.m_strGrayFn)
      return Text("grey function"_say, wanted.m_strGrayFn, made.m_strGrayFn);
    if (wanted.m_nFlags != made.m_nFlags) return Index("flags"_say, wanted.m_nFlags, made.m_nFlags);
    if (wanted.m_nIconIndex != made.m_nIconIndex)
      return Index("icon index"_say, wanted.m_nIconIndex, made.m_nIconIndex);
    const int from = m_wantedSwitches.at(wanted.m_pSwitch);
    const int to = m_madeSwitches.at(made.m_pSwitch);
    if (from == to) return std::nullopt;
    return Index("switch index"_say, from, to);
  }

  using SwitchIndex = std::unordered_map<const TMenuSwitchItem*, int>;
  static SwitchIndex IndexOf(const TMenuSystem& system) {
    SwitchIndex index{{nullptr, -1}};
    for (int i = 0; i < system.m_switches.Length(); ++i) index[system.m_switches.At(i)] = i;
    return index;
  }

  static Message Text(Phrase field, const TWCString& wanted, const TWCString& made) {
    return "{0}: {1}; a source gives {2}"_say(field, Quoted(wanted), Quoted(made));
  }
  static Message Index(Phrase field, long long wanted, long long made) {
    return "{0}: {1}; a source gives {2}"_say(field, std::to_string(wanted), std::to_string(made));
  }

  TMenuSystem& m_wanted;
  TMenuSystem& m_made;
  const SwitchIndex m_wantedSwitches, m_madeSwitches;
  Refusals& m_refusals;
};

}  // namespace

void DifferencesOf(TMenuSystem& wanted, TMenuSystem& made, Refusals& refusals) {
  Comparison(wanted, made, refusals).Run();
}
