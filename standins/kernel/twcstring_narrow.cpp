// Conversions between wide text and the ANSI code page, by the class library's strings.
#include "afx.h"
#include "kernel/twcstring.h"

TUString::TUString(const char* narrow)
    : TUString(narrow, narrow ? static_cast<int>(std::strlen(narrow)) : 0) {}

TUString::TUString(const char* narrow, int bytes) {
  if (!narrow || bytes <= 0) return;
  const CStringW wide(narrow, bytes);
  Assign(wide.GetString(), wide.GetLength());
}

TAString::TAString(const wchar_t* wide) {
  const CStringA narrow(wide ? wide : L"");
  m_text.assign(narrow.GetString(), static_cast<std::size_t>(narrow.GetLength()));
}
