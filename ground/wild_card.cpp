#include "ground/wild_card.h"

namespace {

bool IsBetween(wchar_t unit, unsigned first, unsigned last) {
  return static_cast<unsigned>(unit) >= first && static_cast<unsigned>(unit) <= last;
}

bool IsDigit(wchar_t unit) { return unit >= L'0' && unit <= L'9'; }

// Letters of the scripts used in layer names; ideographs count as letters.
bool IsLetter(wchar_t unit) {
  if (static_cast<unsigned>(unit) < 0x80)
    return (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z');
  return (IsBetween(unit, 0xC0, 0x24F) && unit != 0xD7 && unit != 0xF7) ||
         IsBetween(unit, 0x370, 0x52F) || IsBetween(unit, 0x3041, 0x30FF) ||
         IsBetween(unit, 0x3400, 0x9FFF) || IsBetween(unit, 0xAC00, 0xD7A3) ||
         IsBetween(unit, 0xF900, 0xFAFF) || IsBetween(unit, 0xFF21, 0xFF3A) ||
         IsBetween(unit, 0xFF41, 0xFF5A);
}

bool IsInClass(std::wstring_view characters, wchar_t unit) {
  const bool negated = characters.starts_with(L'~');
  bool in = false;
  for (size_t i = negated ? 1 : 0; i < characters.size(); ++i) {
    if (i + 2 < characters.size() && characters[i + 1] == L'-') {
      in |= characters[i] <= unit && unit <= characters[i + 2];
      i += 2;
    } else {
      in |= characters[i] == unit;
    }
  }
  return in != negated;
}

// One past the end of the pattern that begins at `at`. A comma in brackets or after a back quote
// does not separate.
size_t PatternEnd(std::wstring_view patterns, size_t at) {
  const size_t lastBracket = patterns.rfind(L']');
  bool inClass = false;
  for (; at < patterns.size() && (inClass || patterns[at] != L','); ++at) {
    if (patterns[at] == L'`' && at + 1 < patterns.size())
      ++at;
    else if (patterns[at] == L'[')
      inClass = lastBracket != std::wstring_view::npos && lastBracket >= at;
    else if (patterns[at] == L']')
      inClass = false;
  }
  return at < patterns.size() ? at : patterns.size();
}

}  // namespace

wchar_t MatchCase(wchar_t unit) {
  if (unit >= L'a' && unit <= L'z') return static_cast<wchar_t>(unit - 0x20);
  if (static_cast<unsigned>(unit) < 0x80) return unit;
  if ((IsBetween(unit, 0xE0, 0xFE) && unit != 0xF7) || IsBetween(unit, 0x430, 0x44F) ||
      (IsBetween(unit, 0x3B1, 0x3C9) && unit != 0x3C2) || IsBetween(unit, 0xFF41, 0xFF5A))
    return static_cast<wchar_t>(unit - 0x20);
  return IsBetween(unit, 0x450, 0x45F) ? static_cast<wchar_t>(unit - 0x50) : unit;
}

std::wstring MatchCase(std::wstring_view text) {
  std::wstring upper(text);
  for (wchar_t& unit : upper) unit = MatchCase(unit);
  return upper;
}

WildCard::WildCard(std::wstring_view patterns) : m_text(patterns.begin(), patterns.end()) {
  for (wchar_t& unit : m_text) unit = MatchCase(unit);
  const std::wstring_view text(m_text.data(), m_text.size());
  for (size_t at = 0;;) {
    const size_t end = PatternEnd(text, at);
    Append(text.substr(at, end - at));
    if (end >= text.size()) return;
    at = end + 1;
  }
}

void WildCard::Append(std::wstring_view text) {
  Pattern& pattern = m_patterns.emplace_back();
  pattern.negated = text.starts_with(L'~');
  if (pattern.negated) text.remove_prefix(1);
  pattern.plain = text.find_first_of(L"*?#@.[`") == std::wstring_view::npos;
  pattern.text = text;
  if (pattern.plain) return;
  for (size_t at = 0; at < text.size();) pattern.steps.push_back(Read(text, at));
}

WildCard::Step WildCard::Read(std::wstring_view pattern, size_t& at) const {
  const wchar_t unit = pattern[at++];
  switch (unit) {
    case L'*':
      return {Kind::kStar, unit, {}};
    case L'?':
      return {Kind::kAny, unit, {}};
    case L'#':
      return {Kind::kDigit, unit, {}};
    case L'@':
      return {Kind::kLetter, unit, {}};
    case L'.':
      return {Kind::kOther, unit, {}};
    case L'`':
      return {Kind::kLiteral, at < pattern.size() ? pattern[at++] : unit, {}};
    case L'[':
      // Without a closing bracket it is a literal.
      if (const size_t close = pattern.find(L']', at); close != std::wstring_view::npos) {
        const std::wstring_view characters = pattern.substr(at, close - at);
        at = close + 1;
        return {Kind::kClass, unit, characters};
      }
      [[fallthrough]];
    default:
      return {Kind::kLiteral, unit, {}};
  }
}

bool WildCard::Fits(const Step& step, wchar_t unit) {
  switch (step.kind) {
    case Kind::kLiteral:
      return step.unit == unit;
    case Kind::kDigit:
      return IsDigit(unit);
    case Kind::kLetter:
      return IsLetter(unit);
    case Kind::kOther:
      return !IsDigit(unit) && !IsLetter(unit);
    case Kind::kClass:
      return IsInClass(step.characters, unit);
    default:
      return true;
  }
}

// A star first matches as little as possible; on a mismatch the latest star matches one more
// character. Earlier stars need no backtracking.
bool WildCard::Fits(const Pattern& pattern, std::wstring_view text) {
  if (pattern.plain) return pattern.text == text;
  const std::vector<Step>& steps = pattern.steps;
  size_t at = 0, step = 0, star = steps.size(), starText = 0;
  while (at < text.size()) {
    if (step < steps.size() && steps[step].kind == Kind::kStar) {
      star = step++;
      starText = at;
    } else if (step < steps.size() && Fits(steps[step], text[at])) {
      ++step;
      ++at;
    } else if (star < steps.size()) {
      step = star + 1;
      at = ++starText;
    } else {
      return false;
    }
  }
  while (step < steps.size() && steps[step].kind == Kind::kStar) ++step;
  return step == steps.size();
}

bool WildCard::Matches(std::wstring_view text) const {
  for (const Pattern& pattern : m_patterns)
    if (Fits(pattern, text) != pattern.negated) return true;
  return false;
}
