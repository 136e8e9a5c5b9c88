#include "doctabs/tab_names.h"

#include <iterator>

namespace {

using Runs = std::map<int, int>;

// The run that contains the number, or the end.
Runs::const_iterator RunOf(const Runs& runs, int number) {
  const auto after = runs.upper_bound(number);
  if (after == runs.begin()) return runs.end();
  const auto run = std::prev(after);
  return number <= run->second ? run : runs.end();
}

}  // namespace

TabNames::Text TabNames::Split(const CString& name) {
  std::wstring stem(name.GetString(), static_cast<std::size_t>(name.GetLength()));
  const std::size_t end = stem.find_last_not_of(L'*') + 1;  // npos + 1 is 0
  const int stars = static_cast<int>(stem.size() - end);
  stem.resize(end);
  return {std::move(stem), stars};
}

int TabNames::FirstFree(const Text& text) const {
  const auto found = m_stems.find(text.stem);
  if (found == m_stems.end()) return text.stars;
  const auto run = RunOf(found->second, text.stars);
  return run == found->second.end() ? text.stars : run->second + 1;
}

CString TabNames::Free(const CString& name) const {
  const Text text = Split(name);
  const int more = FirstFree(text) - text.stars;
  return more ? name + CString(L'*', more) : name;
}

void TabNames::Add(const CString& name) {
  const Text text = Split(name);
  Runs& runs = m_stems[text.stem];
  int first = text.stars, last = text.stars;
  const auto after = runs.find(last + 1);
  if (after != runs.end()) {
    last = after->second;
    runs.erase(after);
  }
  const auto before = RunOf(runs, first - 1);
  if (before != runs.end()) first = before->first;
  runs[first] = last;
}

void TabNames::Remove(const CString& name) {
  const Text text = Split(name);
  const auto found = m_stems.find(text.stem);
  if (found == m_stems.end()) return;
  Runs& runs = found->second;
  const auto run = RunOf(runs, text.stars);
  if (run == runs.end()) return;
  const auto [first, last] = *run;
  runs.erase(run);
  if (first < text.stars) runs[first] = text.stars - 1;
  if (last > text.stars) runs[text.stars + 1] = last;
  if (runs.empty()) m_stems.erase(found);
}
