#include "tools/qmn/text_diff.h"

#include <algorithm>
#include <ostream>
#include <string_view>
#include <vector>

namespace {

constexpr size_t kContext = 3;    // unchanged lines around a change
constexpr int kMostSteps = 2000;  // bounds time and memory; texts farther apart are shown whole

using Lines = std::vector<std::string_view>;

Lines LinesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// One line of the diff: both indexes are of the next line of their text.
struct Edit {
  char mark;  // ' ', '-' or '+'
  size_t before, after;
};

// The shortest edit script by Myers' greedy search: m_reach holds, for each step, how far each
// diagonal got.
class EditSearch {
 public:
  EditSearch(const Lines& a, const Lines& b) : m_a(a), m_b(b) {}

  std::vector<Edit> Find() {
    const int most = static_cast<int>(std::min(m_a.size() + m_b.size(), size_t{kMostSteps}));
    std::vector<int> reach(2 * static_cast<size_t>(most) + 3, 0);
    for (int steps = 0; steps <= most; ++steps) {
      m_reach.push_back(reach);
      for (int diagonal = -steps; diagonal <= steps; diagonal += 2) {
        int x = Start(reach, most, steps, diagonal);
        int y = x - diagonal;
        while (IsSame(x, y)) ++x, ++y;
        reach[Index(most, diagonal)] = x;
        if (x >= static_cast<int>(m_a.size()) && y >= static_cast<int>(m_b.size()))
          return Trace(steps, most);
      }
    }
    return Whole();
  }

 private:
  std::vector<Edit> Whole() const {
    std::vector<Edit> edits;
    for (size_t i = 0; i < m_a.size(); ++i) edits.push_back({'-', i, 0});
    for (size_t i = 0; i < m_b.size(); ++i) edits.push_back({'+', m_a.size(), i});
    return edits;
  }

  static size_t Index(int most, int diagonal) { return static_cast<size_t>(most + 1 + diagonal); }
  bool IsSame(int x, int y) const {
    return x < static_cast<int>(m_a.size()) && y < static_cast<int>(m_b.size()) &&
           m_a[static_cast<size_t>(x)] == m_b[static_cast<size_t>(y)];
  }
  // A step goes down, from the diagonal above, or right, from the one below.
  static bool GoesDown(const std::vector<int>& reach, int most, int steps, int diagonal) {
    return diagonal == -steps || (diagonal != steps && reach[Index(most, diagonal - 1)] <
                                                           reach[Index(most, diagonal + 1)]);
  }
  static int Start(const std::vector<int>& reach, int most, int steps, int diagonal) {
    return GoesDown(reach, most, steps, diagonal) ? reach[Index(most, diagonal + 1)]
                                                  : reach[Index(most, diagonal - 1)] + 1;
  }

  std::vector<Edit> Trace(int steps, int most) const {
    std::vector<Edit> edits;
    int x = static_cast<int>(m_a.size()), y = static_cast<int>(m_b.size());
    const auto put = [&edits](char mark, int before, int after) {
      edits.push_back({mark, static_cast<size_t>(before), static_cast<size_t>(after)});
    };
    for (; steps > 0; --steps) {
      const std::vector<int>& reach = m_reach[static_cast<size_t>(steps)];
      const bool down = GoesDown(reach, most, steps, x - y);
      const int from = reach[Index(most, x - y + (down ? 1 : -1))];
      const int fromY = from - (x - y + (down ? 1 : -1));
      while (x > from + (down ? 0 : 1) || y > fromY + (down ? 1 : 0)) --x, --y, put(' ', x, y);
      x = from, y = fromY;
      put(down ? '+' : '-', x, y);
    }
    while (x > 0) --x, --y, put(' ', x, y);
    std::reverse(edits.begin(), edits.end());
    return edits;
  }

  const Lines& m_a;
  const Lines& m_b;
  std::vector<std::vector<int>> m_reach;
};

class DiffWriter {
 public:
  DiffWriter(const Lines& a, const Lines& b, std::ostream& out, bool colour)
      : m_a(a), m_b(b), m_edits(EditSearch(a, b).Find()), m_out(out), m_colour(colour) {}

  void Write() {
    for (size_t at = 0; (at = NextChange(at)) < m_edits.size();) {
      const size_t first = at < kContext ? 0 : at - kContext;
      size_t last = at;  // the last change of the hunk
      for (size_t next = NextChange(at + 1);
           next < m_edits.size() && next - last <= 2 * kContext + 1; next = NextChange(next + 1))
        last = next;
      at = std::min(m_edits.size(), last + kContext + 1);
      Hunk(first, at);
    }
  }

 private:
  size_t NextChange(size_t at) const {
    while (at < m_edits.size() && m_edits[at].mark == ' ') ++at;
    return at;
  }

  void Hunk(size_t first, size_t end) {
    size_t before = 0, after = 0;
    for (size_t i = first; i < end; ++i) {
      before += m_edits[i].mark != '+';
      after += m_edits[i].mark != '-';
    }
    const auto range = [this](size_t start, size_t count) {
      m_out << (count ? start + 1 : start) << ',' << count;
    };
    m_out << (m_colour ? "\x1b[36m@@ -" : "@@ -");
    range(m_edits[first].before, before);
    m_out << " +";
    range(m_edits[first].after, after);
    m_out << (m_colour ? " @@\x1b[0m\n" : " @@\n");
    for (size_t i = first; i < end; ++i) Line(m_edits[i]);
  }

  void Line(const Edit& edit) {
    const char* on = !m_colour || edit.mark == ' ' ? ""
                     : edit.mark == '-'            ? "\x1b[31m"
                                                   : "\x1b[32m";
    m_out << on << edit.mark << (edit.mark == '+' ? m_b[edit.after] : m_a[edit.before])
          << (*on ? "\x1b[0m\n" : "\n");
  }

  const Lines& m_a;
  const Lines& m_b;
  const std::vector<Edit> m_edits;
  std::ostream& m_out;
  const bool m_colour;
};

}  // namespace

void WriteDiff(const std::string& name, const std::string& before, const std::string& after,
               std::ostream& out, bool colour) {
  const Lines a = LinesOf(before), b = LinesOf(after);
  if (a == b) return;
  out << "--- " << name << "\n+++ " << name << "\n";
  DiffWriter(a, b, out, colour).Write();
}
