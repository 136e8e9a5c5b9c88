// Reading of typed answers; see the header.
#include "devhost/core/commands/typed_input.h"

#include <cmath>
#include <cwchar>
#include <cwctype>
#include <numbers>
#include <sstream>
#include <vector>

#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

std::vector<std::wstring> WordsOf(const std::wstring& keywords) {
  std::vector<std::wstring> words;
  std::wistringstream text(keywords);
  for (std::wstring word; text >> word;) words.push_back(word);
  return words;
}

std::wstring CapitalsOf(const std::wstring& word) {
  std::wstring capitals;
  for (wchar_t c : word)
    if (std::iswupper(static_cast<wint_t>(c))) capitals += c;
  return capitals;
}

}  // namespace

std::optional<std::wstring> MatchKeyword(const std::wstring& keywords, std::wstring typed) {
  if (!typed.empty() && typed[0] == L'_') typed.erase(0, 1);  // prefix of the language-neutral form
  typed = UpperCase(typed);
  if (typed.empty()) return std::nullopt;
  const std::vector<std::wstring> words = WordsOf(keywords);
  for (const std::wstring& word : words)
    if (typed == UpperCase(word) || typed == CapitalsOf(word)) return word;
  for (const std::wstring& word : words)
    if (typed.size() >= CapitalsOf(word).size() && UpperCase(word).starts_with(typed)) return word;
  return std::nullopt;
}

bool ReadNumber(const wchar_t*& at, double* value) {
  wchar_t* end = nullptr;
  *value = std::wcstod(at, &end);
  if (end == at || !std::isfinite(*value)) return false;
  at = end;
  return true;
}

std::optional<AcGePoint3d> ReadPoint(const std::wstring& text, const AcGePoint3d& base) {
  const wchar_t* at = text.c_str();
  const bool relative = *at == L'@';
  if (relative && !*++at) return base;
  double a = 0, b = 0, z = 0;
  if (!ReadNumber(at, &a)) return std::nullopt;
  AcGePoint3d p;
  if (*at == L'<') {
    if (!ReadNumber(++at, &b) || *at) return std::nullopt;
    const double angle = b * std::numbers::pi / 180;
    p = {a * std::cos(angle), a * std::sin(angle), 0};
  } else {
    if (*at != L',' || !ReadNumber(++at, &b)) return std::nullopt;
    if (*at == L',' && !ReadNumber(++at, &z)) return std::nullopt;
    if (*at) return std::nullopt;
    p = {a, b, z};
  }
  return relative ? AcGePoint3d(base.x + p.x, base.y + p.y, base.z + p.z) : p;
}

}  // namespace devhost
