// The published functions that print on the command line and show alerts.
#include <cstdarg>
#include <cwchar>

#include "aced.h"
#include "adslib.h"
#include "devhost/core/host/host.h"

using devhost::TheHost;

namespace {

// Converts %s and %c to their wide forms %ls and %lc: in the published interface they are wide, in
// the C libraries of both builds narrow.
std::wstring WithWideStrings(const wchar_t* format) {
  std::wstring out;
  while (*format) {
    out += *format++;
    if (out.back() != L'%') continue;
    while (*format && std::wcschr(L"-+ #0123456789.*", *format)) out += *format++;
    const bool plain = *format == L's' || *format == L'c';
    if (plain)
      out += L'l';
    else if (*format == L'S' || *format == L'C') {
      out += *format++ == L'S' ? L's' : L'c';
      continue;
    }
    if (*format) out += *format++;
  }
  return out;
}

}  // namespace

int acutPrintf(const ACHAR* narrowFormat, ...) {
  if (!narrowFormat) return RTERROR;
  const std::wstring format = WithWideStrings(narrowFormat);
  std::wstring text(1024, L'\0');
  int length = -1;
  // The host truncates longer texts.
  for (std::size_t limit : {std::size_t{1024}, std::size_t{65536}}) {
    text.assign(limit, L'\0');
    va_list args;
    va_start(args, narrowFormat);
    length = std::vswprintf(text.data(), limit, format.c_str(), args);
    va_end(args);
    if (length >= 0 && static_cast<std::size_t>(length) < limit) break;
    length = -1;  // some libraries return the required size, others -1
  }
  text.resize(length < 0 ? std::wcslen(text.c_str()) : static_cast<std::size_t>(length));
  TheHost().Print(text);
  return RTNORM;
}

int acedPrompt(const ACHAR* text) {
  if (!text) return RTERROR;
  TheHost().Print(text);
  return RTNORM;
}

int acedAlert(const ACHAR* text) {
  TheHost().Ui().Alert(text ? text : L"");
  return RTNORM;
}

void acedPostCommandPrompt() {
  if (TheHost().documents.Current()) TheHost().Ui().Print(L"\n");
}
