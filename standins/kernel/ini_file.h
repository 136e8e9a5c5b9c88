// Reads one section of an ini file from its bytes, without file access. QvxExport passes it the
// bytes of a file.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "kernel/twcstring.h"

class IniSection {
 public:
  // False when the text has no such section. Files are in the ANSI code page; byte order marks are
  // not recognised.
  bool Read(std::string_view bytes, const wchar_t* section);

  const wchar_t* Value(const wchar_t* key) const;  // null when missing

 private:
  void AddLine(std::string_view line);

  std::vector<std::pair<TWCString, TWCString>> m_values;
};
