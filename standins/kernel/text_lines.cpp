#include "kernel/text_lines.h"

std::wstring TextToStore(std::wstring_view typed, bool multiLine) {
  std::wstring out;
  for (std::size_t i = 0; i < typed.size(); ++i) {
    const wchar_t c = typed[i];
    if (c != L'\r' && c != L'\n') {
      out += c;
      continue;
    }
    out += multiLine ? L'\n' : L' ';
    if (c == L'\r' && i + 1 < typed.size() && typed[i + 1] == L'\n') ++i;
  }
  return out;
}

std::wstring TextToEdit(std::wstring_view stored) {
  std::wstring out;
  for (const wchar_t c : stored) {
    if (c == L'\n') out += L'\r';
    out += c;
  }
  return out;
}

std::wstring TextToFile(std::wstring_view stored) {
  std::wstring out;
  for (const wchar_t c : stored) {
    if (c == L'\n')
      out += L"\\P";
    else if (c == L'\\')
      out += L"\\\\";
    else
      out += c;
  }
  return out;
}

std::wstring TextFromFile(std::wstring_view written) {
  std::wstring out;
  for (std::size_t i = 0; i < written.size(); ++i) {
    const wchar_t next = written[i] == L'\\' && i + 1 < written.size() ? written[i + 1] : L'\0';
    if (next == L'P' || next == L'\\') {
      out += next == L'P' ? L'\n' : L'\\';
      ++i;
    } else {
      out += written[i];
    }
  }
  return out;
}

std::vector<std::wstring> LinesOf(std::wstring_view stored) {
  std::vector<std::wstring> lines;
  for (;;) {
    const std::size_t end = stored.find(L'\n');
    lines.emplace_back(stored.substr(0, end));
    if (end == stored.npos) return lines;
    stored.remove_prefix(end + 1);
  }
}
