#include "tests/doubles/reference_wild_match.h"

#include <string>

namespace {

using View = std::wstring_view;

wchar_t Upper(wchar_t unit) {
  return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 32) : unit;
}
bool IsDigit(wchar_t unit) { return unit >= L'0' && unit <= L'9'; }
bool IsLetter(wchar_t unit) { return Upper(unit) >= L'A' && Upper(unit) <= L'Z'; }

bool InClass(View characters, wchar_t unit) {
  if (characters.empty()) return false;
  if (characters.size() > 2 && characters[1] == L'-')
    return (characters[0] <= unit && unit <= characters[2]) || InClass(characters.substr(3), unit);
  return characters[0] == unit || InClass(characters.substr(1), unit);
}

// One pattern without its leading ~.
bool Match(View text, View pattern) {
  if (pattern.empty()) return text.empty();
  const wchar_t first = pattern[0];
  if (first == L'*')
    return Match(text, pattern.substr(1)) || (!text.empty() && Match(text.substr(1), pattern));
  if (text.empty()) return false;
  const wchar_t unit = text[0];
  bool fits = unit == first;
  size_t length = 1;
  if (first == L'?') fits = true;
  if (first == L'#') fits = IsDigit(unit);
  if (first == L'@') fits = IsLetter(unit);
  if (first == L'.') fits = !IsDigit(unit) && !IsLetter(unit);
  if (first == L'`' && pattern.size() > 1) {
    fits = unit == pattern[1];
    length = 2;
  }
  const size_t close = first == L'[' ? pattern.find(L']', 1) : View::npos;
  if (close != View::npos) {
    const bool negated = pattern[1] == L'~';
    const size_t from = negated ? 2 : 1;
    fits = InClass(pattern.substr(from, close - from), unit) != negated;
    length = close + 1;
  }
  return fits && Match(text.substr(1), pattern.substr(length));
}

// Length of the first of several patterns. A comma after a back quote or in a class does not
// separate.
size_t FirstLength(View patterns) {
  size_t at = 0;
  while (at < patterns.size() && patterns[at] != L',') {
    const size_t close = patterns[at] == L'[' ? patterns.find(L']', at) : View::npos;
    if (patterns[at] == L'`' && at + 1 < patterns.size()) {
      at += 2;
    } else if (close != View::npos) {
      // A back quote in a class takes the next character, which may be the bracket.
      for (++at; at < patterns.size() && patterns[at] != L']'; ++at)
        if (patterns[at] == L'`' && at + 1 < patterns.size()) ++at;
    } else {
      ++at;
    }
  }
  return at < patterns.size() ? at : patterns.size();
}

}  // namespace

bool ReferenceWildMatch(View text, View patterns) {
  std::wstring upperText, upperPatterns;
  for (wchar_t unit : text) upperText += Upper(unit);
  for (wchar_t unit : patterns) upperPatterns += Upper(unit);
  for (View rest = upperPatterns;;) {
    const size_t length = FirstLength(rest);
    View one = rest.substr(0, length);
    const bool negated = one.starts_with(L'~');
    if (negated) one.remove_prefix(1);
    if (Match(upperText, one) != negated) return true;
    if (length == rest.size()) return false;
    rest.remove_prefix(length + 1);
  }
}
