// The pass that turns "->" and "<-" labels into sub-menus.
//
// As worded, the rule works level by level: walk the lines with a depth that an opening line raises
// by one and a closing line lowers by its number of "<-" pairs; the first opening line since the
// last closing and the closing line that brings the depth to exactly zero are a range; its lines
// behind the first go into a new bar, which is nested in the same way, the last line having lost
// one pair. A walk for each level costs the square of the depth, so the same result is reached here
// from one running sum over all lines. While a range is open every line counts, so that the range
// of an opening line a ends at the first closing line behind it where the sum is one less than
// behind a. That does not depend on the level, but for the last line of a bar, whose pairs are worn
// off one a level.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "menu/menu_passes.h"
#include "menu/menu_bar.h"

namespace {

constexpr int kNone = -1;
constexpr int kUsualLength = 16;  // of a sub-menu; more grows

// What the labels of a bar say, gathered once before any line moves.
class NestPlan {
 public:
  explicit NestPlan(const TMenuBar& bar) {
    m_lines.reserve(static_cast<size_t>(bar.Length()));
    for (int i = 0; i < bar.Length(); ++i) Gather(bar.At(i)->m_strLabel);
    if (m_hasOpening) FindEnds();
  }

  bool HasOpening() const { return m_hasOpening; }

  // The next opening line from `from` on that may have a range ending at or before `last`, a line
  // that has lost `worn` of its pairs. {line, kNone} for an opening line that is never closed
  // there: no later one of this bar counts either. {kNone, kNone} when there is no opening line.
  TItemDot NextRange(int from, int last, int worn) const {
    const int first = from <= last ? m_lines[Index(from)].nextOpening : kNone;
    if (first == kNone || first > last) return {kNone, kNone};
    const Line& opening = m_lines[Index(first)];
    if (opening.end != kNone && opening.end < last) return {first, opening.end};
    const Line& closing = m_lines[Index(last)];
    const bool closes =
        first < last && closing.pairs - worn >= 1 && closing.sum + worn == opening.sum - 1;
    return {first, closes ? last : kNone};
  }

 private:
  struct Line {
    int pairs;  // leading "<-" pairs; kOpening for a line that begins with "->"
    int sum;    // +1 for each opening line, -1 for each pair, up to and with this line
    int end = kNone;
    int nextOpening = kNone;  // this line or the first opening one behind it
  };
  static constexpr int kOpening = -1;

  static size_t Index(int i) { return static_cast<size_t>(i); }

  static int PairsOf(const TWCString& label) {
    const wchar_t* text = label.c_str();
    if (text[0] == L'-' && text[1] == L'>') return kOpening;
    int pairs = 0;
    while (text[0] == L'<' && text[1] == L'-') ++pairs, text += 2;
    return pairs;
  }

  void Gather(const TWCString& label) {
    const int pairs = PairsOf(label);
    if (pairs == kOpening) m_hasOpening = true;
    m_sum -= pairs;
    m_lowest = std::min(m_lowest, m_sum);
    m_highest = std::max(m_highest, m_sum);
    m_lines.push_back({pairs, m_sum});
  }

  void FindEnds() {
    // For each sum the nearest closing line that ends with it, seen from the line being looked at.
    std::vector<int> nearest(static_cast<size_t>(m_highest - m_lowest) + 2, kNone);
    int opening = kNone;
    for (int i = static_cast<int>(m_lines.size()) - 1; i >= 0; --i) {
      Line& line = m_lines[Index(i)];
      if (line.pairs == kOpening) {
        opening = i;
        line.end = nearest[Index(line.sum - 1 - m_lowest + 1)];
      } else if (line.pairs > 0) {
        nearest[Index(line.sum - m_lowest + 1)] = i;
      }
      line.nextOpening = opening;
    }
  }

  std::vector<Line> m_lines;
  bool m_hasOpening = false;
  int m_sum = 0;
  int m_lowest = 0;
  int m_highest = 0;
};

void DropPair(TWCString& label) { label.Keep(label.c_str() + 2, label.Length() - 2); }

// Hands the lines out to their bars by a plan. The bars under construction form a path on the heap.
class Nester {
 public:
  Nester(TMenuBar& bar, const NestPlan& plan) : m_plan(plan) {
    const int last = bar.Length() - 1;
    m_lines.TakeAll(bar);
    m_path.push_back({&bar, 0, last, 0});
  }

  int Run() {
    int steps = 0;
    for (; !m_path.empty(); ++steps) Step();
    return steps;
  }

 private:
  struct Place {
    TMenuBar* bar;
    int next;
    int last;
    int worn;
  };

  void Step() {
    Place& place = m_path.back();
    const TItemDot range = m_plan.NextRange(place.next, place.last, place.worn);
    if (range.last == kNone) {
      MoveTo(*place.bar, place.next, place.last);
      m_path.pop_back();
      return;
    }
    MoveTo(*place.bar, place.next, range.first);
    TMenuItem* opening = place.bar->Last();
    DropPair(opening->m_strLabel);
    DropPair(m_lines.At(range.last)->m_strLabel);
    opening->m_pSubMenu = new TMenuBar;
    opening->m_pSubMenu->Reserve(std::min(range.last - range.first, kUsualLength));
    place.next = range.last + 1;
    const int worn = range.last == place.last ? place.worn + 1 : 1;
    m_path.push_back({opening->m_pSubMenu, range.first + 1, range.last, worn});
  }

  void MoveTo(TMenuBar& bar, int first, int last) {
    for (int i = first; i <= last; ++i) {
      bar.Append(m_lines.At(i));
      m_lines.Exchange(i, nullptr);
    }
  }

  const NestPlan& m_plan;
  TDPtrList<TMenuItem> m_lines;
  std::vector<Place> m_path;
};

}  // namespace

int NestSubMenus(TMenuBar& bar) {
  const NestPlan plan(bar);
  return plan.HasOpening() ? Nester(bar, plan).Run() : 0;
}
