// Names of commands, layers, variables and files are compared in upper case.
#pragma once

#include <cwctype>
#include <string>

namespace devhost {

inline std::wstring UpperCase(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
  return text;
}
inline bool SameName(const std::wstring& a, const std::wstring& b) {
  return a.size() == b.size() && UpperCase(a) == UpperCase(b);
}
inline std::wstring FileNameOf(const std::wstring& path) {
  const std::size_t at = path.find_last_of(L"/\\:");
  return at == std::wstring::npos ? path : path.substr(at + 1);
}
inline std::wstring WithoutExtension(const std::wstring& name) {
  const std::size_t dot = name.rfind(L'.');
  return dot == std::wstring::npos || dot == 0 ? name : name.substr(0, dot);
}

}  // namespace devhost
