// Reading one section of an ini file out of its bytes. Plain: no file, no host. The file helpers of
// QvxExport give it the bytes of a file found on disk.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "kernel/twcstring.h"

class IniSection {
 public:
  // False when the text has no such section. Byte order marks are not known: files are in the ANSI
  // code page.
  bool Read(std::string_view bytes, const wchar_t* section);

  const wchar_t* Value(const wchar_t* key) const;  // null when missing

 private:
  void AddLine(std::string_view line);

  std::vector<std::pair<TWCString, TWCString>> m_values;
};
