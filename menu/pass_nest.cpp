// The pass that turns "->" and "<-" labels into sub-menus.
//
// The language defines the rule level by level: walk the lines with a depth that an opening line
// raises by one and a closing line lowers by its number of "<-" pairs. The first opening line since
// the last closing one and the closing line that brings the depth to exactly zero are a range. Its
// lines after the first go into a new bar, which is nested in the same way after the last line has
// lost one pair. A walk for each level takes quadratic time in the depth, so that the same result
// is computed here from one running sum over all lines. While a range is open every line counts;
// the range of an opening line therefore ends at the first later closing line where the sum is one
// less than after the opening line. This does not depend on the level, except for the last line of
// a bar, which loses one pair at each level.
#include <algorithm>
#include <cstdlib>

#include "menu/menu_passes.h"
#include "menu/menu_bar.h"

namespace {

constexpr int kNone = -1;
constexpr int kOpening = -1;

// All arrows are removed when a line is recorded. Few labels keep one, since most menus are
// well-formed; they get it back here.
void PutBack(TWCString& label, const wchar_t* pair, int count) {
  TWCString whole;
  for (; count > 0; --count) whole += pair;
  whole.Append(label, label.Length());
  label = whole;
}

}  // namespace

void SubMenuNester::Note(TMenuItem& item, int line) {
  const wchar_t* text = item.m_strLabel;
  if (text[0] == L'-' && text[1] == L'>') return Note(item, line, kOpening);
  int pairs = 0;
  for (; text[0] == L'<' && text[1] == L'-'; text += 2) ++pairs;
  if (pairs) Note(item, line, pairs);
}

void SubMenuNester::Note(TMenuItem& item, int line, int pairs) {
  m_sum -= pairs;
  m_lowest = std::min(m_lowest, m_sum);
  m_highest = std::max(m_highest, m_sum);
  m_arrows.push_back({&item, line, pairs, m_sum, 0, kNone, kNone});
  const int arrows = 2 * std::abs(pairs);
  item.m_strLabel.Assign(item.m_strLabel + arrows, item.m_strLabel.Length() - arrows);
}

void SubMenuNester::Clear() {
  m_arrows.clear();
  m_sum = m_lowest = m_highest = 0;
}

void SubMenuNester::FindEnds() {
  // For each sum the nearest closing arrow after arrow i that has it.
  m_nearest.assign(static_cast<size_t>(m_highest - m_lowest) + 2, kNone);
  const auto place = [&](int sum) { return static_cast<size_t>(sum - m_lowest + 1); };
  int opening = kNone;
  for (int i = static_cast<int>(m_arrows.size()) - 1; i >= 0; --i) {
    Arrow& arrow = m_arrows[static_cast<size_t>(i)];
    if (arrow.pairs == kOpening) {
      opening = i;
      arrow.end = m_nearest[place(arrow.sum - 1)];
    } else {
      m_nearest[place(arrow.sum)] = i;
    }
    arrow.nextOpening = opening;
  }
}

// The next opening arrow of the bar and its closing arrow. {arrow, kNone} for an arrow that is not
// closed in this bar: its later opening arrows open no range either. {kNone, kNone} when there is
// no opening arrow.
TItemDot SubMenuNester::NextRange(const Place& place) const {
  const bool isBehindAll = place.nextArrow == static_cast<int>(m_arrows.size());
  const int first = isBehindAll ? kNone : At(place.nextArrow).nextOpening;
  if (first == kNone || At(first).line > place.last) return {kNone, kNone};
  const Arrow& opening = At(first);
  if (opening.end != kNone && At(opening.end).line < place.last) return {first, opening.end};
  const int last = place.lastArrow;
  const bool closes = last > first && At(last).pairs > At(last).worn &&
                      At(last).sum + At(last).worn == opening.sum - 1;
  return {first, closes ? last : kNone};
}

int SubMenuNester::HandOut(TDPtrList<TMenuItem>& lines, TMenuBar& bar) {
  const int last = lines.Length() - 1;
  const int lastArrow = static_cast<int>(m_arrows.size()) - 1;
  const bool isArrow = lastArrow != kNone && At(lastArrow).line == last;
  int steps = 0;
  if (!m_arrows.empty()) FindEnds();
  m_path.clear();
  m_path.push_back({&bar, 0, 0, 0, 0, last, isArrow ? lastArrow : kNone});
  for (; !m_path.empty(); ++steps) Step(lines);
  for (const Arrow& arrow : m_arrows)
    if (const int kept = std::abs(arrow.pairs) - arrow.worn)
      PutBack(arrow.item->m_strLabel, arrow.pairs == kOpening ? L"->" : L"<-", kept);
  lines.Forget();
  return steps;
}

// The lines of the bars on the path are collected at the front of the list, so that each bar
// reserves exactly the room for its lines. The list owns them until then.
void SubMenuNester::Step(TDPtrList<TMenuItem>& lines) {
  Place& place = m_path.back();
  const auto [first, last] = NextRange(place);
  const int upTo = last == kNone ? place.last : At(first).line;
  for (; place.next <= upTo; ++place.next)
    lines.Exchange(place.end++, lines.Exchange(place.next, nullptr));
  if (last == kNone) {
    place.bar->Reserve(place.end - place.begin);
    for (int i = place.begin; i < place.end; ++i) place.bar->Append(lines.Exchange(i, nullptr));
    m_path.pop_back();
    return;
  }
  Arrow& opening = m_arrows[static_cast<size_t>(first)];
  Arrow& closing = m_arrows[static_cast<size_t>(last)];
  ++opening.worn;
  ++closing.worn;
  opening.item->m_pSubMenu = new TMenuBar;
  place.next = closing.line + 1;
  place.nextArrow = last + 1;
  m_path.push_back({opening.item->m_pSubMenu, place.end, place.end, opening.line + 1, first + 1,
                    closing.line, last});
}
