#include "word_library.h"

#include <algorithm>
#include <optional>

namespace {

struct Line {
  std::wstring_view text;  // without blanks around it
  std::size_t end;         // of the line in the whole text, after its line break
};

std::wstring_view Trimmed(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t\r\n\u3000\ufeff";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<Line> LinesOf(std::wstring_view text) {
  std::vector<Line> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(L'\n', at), text.size() - 1) + 1;
    lines.push_back({Trimmed(text.substr(at, end - at)), end});
    at = end;
  }
  return lines;
}

// Without a "]" at its end the line names a group all the same.
std::optional<std::wstring_view> GroupOf(std::wstring_view line) {
  if (!line.starts_with(L'[')) return std::nullopt;
  line.remove_prefix(1);
  if (line.ends_with(L']')) line.remove_suffix(1);
  return Trimmed(line);
}

bool IsWord(std::wstring_view line) { return !line.empty() && line[0] != L';' && line[0] != L'['; }

WordGroup& GroupNamed(std::vector<WordGroup>& groups, std::wstring_view name) {
  const auto at = std::ranges::find(groups, name, &WordGroup::name);
  if (at != groups.end()) return *at;
  return groups.emplace_back(WordGroup{std::wstring(name), {}});
}

bool Holds(const WordGroup& group, std::wstring_view word) {
  return std::ranges::find(group.words, word) != group.words.end();
}

// After the group's last word, or after its heading when it has none.
std::optional<std::size_t> EndOfGroup(std::wstring_view text, std::wstring_view group) {
  std::optional<std::size_t> end;
  bool inside = false;
  for (const Line& line : LinesOf(text)) {
    const std::optional<std::wstring_view> heading = GroupOf(line.text);
    if (heading) inside = *heading == group;
    if (inside && (heading || IsWord(line.text))) end = line.end;
  }
  return end;
}

}  // namespace

std::vector<WordGroup> WordsOf(std::wstring_view text) {
  std::vector<WordGroup> groups;
  std::optional<std::wstring_view> current;
  for (const Line& line : LinesOf(text)) {
    if (const auto heading = GroupOf(line.text)) {
      current = heading;
      GroupNamed(groups, *current);
    } else if (current && IsWord(line.text)) {
      WordGroup& group = GroupNamed(groups, *current);
      if (!Holds(group, line.text)) group.words.emplace_back(line.text);
    }
  }
  return groups;
}

std::wstring WithWord(std::wstring_view text, std::wstring_view group, std::wstring_view word) {
  std::wstring result(text);
  word = Trimmed(word);
  if (!IsWord(word) || word.find(L'\n') != std::wstring_view::npos) return result;
  std::vector<WordGroup> groups = WordsOf(text);
  if (Holds(GroupNamed(groups, group), word)) return result;
  std::wstring added = std::wstring(word) + L"\r\n";
  std::size_t at = result.size();
  if (const auto end = EndOfGroup(text, group))
    at = *end;
  else
    added.insert(0, L"[" + std::wstring(group) + L"]\r\n");
  if (at > 0 && result[at - 1] != L'\n') added.insert(0, L"\r\n");
  return result.insert(at, added);
}
