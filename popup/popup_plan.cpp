#include "popup/popup_plan.h"

#include <algorithm>
#include <climits>
#include <cwchar>

namespace {

constexpr wchar_t kRecentLabel[] = L"最近命令";
constexpr wchar_t kRecentCommand[] = L"*Recent";

int NumberOf(const wchar_t* command) {
  return static_cast<int>(
      std::clamp<long long>(std::wcstoll(command, nullptr, 10), INT_MIN, INT_MAX));
}

// An explicit stack instead of recursion: files may nest sub-menus without limit. A line with a
// sub-menu gets its row after all rows below it.
class Planner {
 public:
  Planner(PopupIds ids, int firstId, const qvx::LineSources& sources)
      : m_ids(ids), m_nextId(firstId), m_sources(sources) {}

  PopupPlan Run(TMenuBar& bar) {
    Enter(bar);
    while (!m_path.empty() && !IsGone()) Step();
    if (IsGone()) return {};
    return std::move(m_plan);
  }

 private:
  struct Place {
    TMenuBar* bar;
    size_t menu;
    int next;
    int filled;  // the finished menu of the line at `next`; -1 without one
  };

  void Enter(TMenuBar& bar) {
    m_path.push_back({&bar, m_plan.menus.size(), 0, -1});
    m_plan.menus.emplace_back();
  }

  void Leave() {
    const int filled = static_cast<int>(m_path.back().menu);
    m_path.pop_back();
    if (!m_path.empty()) m_path.back().filled = filled;
  }

  void Step() {
    Place& place = m_path.back();
    if (place.next >= place.bar->Length()) return Leave();
    TMenuItem& line = *place.bar->At(place.next);
    const bool leadsOn = line.m_pSubMenu && !line.m_pSwitch && !line.IsSeparator();
    if (leadsOn && place.filled < 0 && m_path.size() <= kDeepestSubMenu)
      return Enter(*line.m_pSubMenu);
    PopupRow row;
    row.index = place.next++;
    row.subMenu = place.filled;
    place.filled = -1;
    Add(line, row, m_plan.menus[place.menu]);
  }

  void Add(TMenuItem& line, PopupRow& row, std::vector<PopupRow>& menu) {
    if (!line.m_pSwitch && line.IsSeparator()) {
      row.flags = kRowSeparator;
      menu.push_back(row);
      return;
    }
    const bool leadsOn = line.m_pSubMenu && !line.m_pSwitch;
    const int id = m_ids == PopupIds::kCommand ? NumberOf(line.m_strCommand) : m_nextId++;
    if (!leadsOn && id > kLastPopupId) return;
    row.line = &line;
    row.flags = line.m_pSwitch ? FlagsOfSwitch(line, id)
                : leadsOn      ? FlagsOfSubMenu(line, row.subMenu)
                               : FlagsOfPlain(line, id);
    if (IsGone()) return;
    if (!leadsOn) row.id = id;
    row.bitmap = BitmapOf(line);
    menu.push_back(row);
  }

  unsigned FlagsOfSwitch(TMenuItem& line, int id) {
    line.m_nCommandId = id;
    const TSwitchStateItem* state = qvx::AskSwitch(line, m_sources);
    if (!state) return kRowOwnerDrawn | kRowOff;
    qvx::CopyState(*state, line);
    return kRowOwnerDrawn;
  }

  unsigned FlagsOfSubMenu(const TMenuItem& line, int subMenu) {
    return subMenu < 0 ? kRowOwnerDrawn | kRowOff : FlagsOfGrayFunction(line) | kRowSubMenu;
  }

  unsigned FlagsOfPlain(TMenuItem& line, int id) {
    line.m_nCommandId = id;
    unsigned flags = FlagsOfGrayFunction(line);
    if (IsGone()) return 0;
    if (line.m_strCommand.IsEmpty()) flags |= kRowOff;
    if (qvx::IsLineChecked(line, m_sources)) flags |= kRowChecked;
    return flags;
  }

  unsigned FlagsOfGrayFunction(const TMenuItem& line) {
    return qvx::IsLineGray(line, m_sources) ? kRowOwnerDrawn | kRowOff
                                            : static_cast<unsigned>(kRowOwnerDrawn);
  }

  bool IsGone() const { return m_sources.watch.IsGone(); }

  const wchar_t* BitmapOf(const TMenuItem& line) const {
    const wchar_t* name = qvx::IconOfLine(line, m_sources);
    return name && *name ? name : nullptr;
  }

  PopupIds m_ids;
  int m_nextId;
  const qvx::LineSources& m_sources;
  PopupPlan m_plan;
  std::vector<Place> m_path;
};

}  // namespace

PopupPlan PlanPopup(TMenuBar& bar, PopupIds ids, int firstId, const qvx::LineSources& sources) {
  return Planner(ids, firstId, sources).Run(bar);
}

void EnsureRecentLine(TMenuBar& bar, TMenuStack& recent) {
  if (bar.FindItemByLabel(kRecentLabel)) return;
  auto* line = new TMenuItem(kRecentLabel, kRecentCommand);
  line->m_pSubMenu = &recent;
  bar.Reserve(bar.Length() + 1);
  bar.SetCursor(1);
  bar.InsertAtCursor(line);
}
