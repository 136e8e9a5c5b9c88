// Wild-card patterns; see the header. Also acutWcMatch.
#include "devhost/core/selection/wild_match.h"

#include <cwctype>

#include "adslib.h"
#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

bool InCharacterClass(const std::wstring& cls, wchar_t c) {
  const bool negated = !cls.empty() && cls[0] == L'~';
  bool in = false;
  for (std::size_t i = negated ? 1 : 0; i < cls.size(); ++i) {
    if (i + 2 < cls.size() && cls[i + 1] == L'-') {
      in |= cls[i] <= c && c <= cls[i + 2];
      i += 2;
    } else {
      in |= cls[i] == c;
    }
  }
  return in != negated;
}

// Compares a character with the element of a pattern at `at`, other than `*`. `next` is set to the
// element after it.
bool MatchElement(wchar_t c, const std::wstring& p, std::size_t at, std::size_t* next) {
  *next = at + 1;
  switch (p[at]) {
    case L'?':
      return true;
    case L'#':
      return std::iswdigit(static_cast<wint_t>(c)) != 0;
    case L'@':
      return std::iswalpha(static_cast<wint_t>(c)) != 0;
    case L'.':
      return std::iswalnum(static_cast<wint_t>(c)) == 0;
    case L'`':
      if (at + 1 >= p.size()) return c == L'`';
      *next = at + 2;
      return p[at + 1] == c;
    case L'[': {
      const std::size_t close = p.find(L']', at + 1);
      if (close == std::wstring::npos) return c == L'[';
      *next = close + 1;
      return InCharacterClass(p.substr(at + 1, close - at - 1), c);
    }
    default:
      return p[at] == c;
  }
}

// Matches one pattern against the whole text. Only the latest `*` needs backtracking.
bool MatchPattern(const std::wstring& text, const std::wstring& p) {
  std::size_t t = 0, i = 0, starAt = std::wstring::npos, starText = 0;
  while (t < text.size()) {
    std::size_t next = 0;
    if (i < p.size() && p[i] == L'*') {
      starAt = i++;
      starText = t;
    } else if (i < p.size() && MatchElement(text[t], p, i, &next)) {
      i = next;
      ++t;
    } else if (starAt != std::wstring::npos) {
      i = starAt + 1;
      t = ++starText;
    } else {
      return false;
    }
  }
  while (i < p.size() && p[i] == L'*') ++i;
  return i == p.size();
}

}  // namespace

bool WildMatch(const std::wstring& text, const std::wstring& patterns) {
  const std::wstring upper = UpperCase(text);
  std::size_t at = 0;
  for (;;) {
    std::size_t end = at;
    bool inClass = false;
    while (end < patterns.size() && (inClass || patterns[end] != L',')) {
      if (patterns[end] == L'`' && end + 1 < patterns.size())
        ++end;
      else if (patterns[end] == L'[')
        inClass = patterns.find(L']', end) != std::wstring::npos;
      else if (patterns[end] == L']')
        inClass = false;
      ++end;
    }
    std::wstring one = UpperCase(patterns.substr(at, end - at));
    const bool negated = !one.empty() && one[0] == L'~';
    if (negated) one.erase(0, 1);
    if (MatchPattern(upper, one) != negated) return true;
    if (end >= patterns.size()) return false;
    at = end + 1;
  }
}

}  // namespace devhost

int acutWcMatch(const ACHAR* text, const ACHAR* patterns) {
  return text && patterns && devhost::WildMatch(text, patterns) ? RTNORM : RTERROR;
}
