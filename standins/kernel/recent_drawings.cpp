#include "kernel/recent_drawings.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <string>
#include <vector>

namespace {

bool EqualFiles(const std::wstring& a, const std::wstring& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](wchar_t x, wchar_t y) {
    return std::towlower(static_cast<wint_t>(x)) == std::towlower(static_cast<wint_t>(y));
  });
}

std::vector<std::wstring> Entries(const wchar_t* list) {
  std::vector<std::wstring> entries;
  for (const wchar_t* end; (end = std::wcschr(list, L',')) != nullptr; list = end + 1)
    if (end != list) entries.emplace_back(list, end);
  return entries;
}

}  // namespace

void NoteRecentDrawing(CString& list, const wchar_t* file) {
  const std::wstring name(file ? file : L"");
  if (name.find_first_of(L"\\/") == name.npos || name.find(L',') != name.npos) return;
  std::vector<std::wstring> entries = Entries(list);
  std::erase_if(entries, [&](const std::wstring& entry) { return EqualFiles(entry, name); });
  entries.push_back(name);
  const size_t surplus = entries.size() - std::min<size_t>(entries.size(), kMostRecentDrawings);
  std::wstring text;
  for (size_t i = surplus; i < entries.size(); ++i) text += entries[i] + L",";
  list = text.c_str();
}
