// The text form of drawing files as pairs of a group code and a value, each with its line. Values
// are bytes of the file; DxfDecoder converts them. Used by the drawing reader.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace devhost {

struct DxfGroup {
  short code;
  std::string_view value;  // without line end; blanks are kept
  int line;                // of the code; the value is on the next line
};

enum class DxfDamage { None, NotText, BadCode, Truncated, NoEndMark, DataAfterEnd };

struct DxfScan {
  std::vector<DxfGroup> groups;  // all readable groups, without comments (999)
  DxfDamage damage = DxfDamage::None;
  int line = 0;  // line of the damage, from 1
};

// Reads pairs until the end mark (0, EOF), the end of the bytes or the first line that is
// not a code.
DxfScan ScanDxf(std::string_view bytes);

std::string_view TrimBlanks(std::string_view text);

// Numbers of the format. Nothing if anything but blanks follows the digits.
std::optional<double> DxfReal(std::string_view value);
// Also "3.0", which some programs write.
std::optional<long long> DxfInteger(std::string_view value);
std::optional<unsigned long long> DxfHandle(std::string_view value);  // hexadecimal, not 0

// Decodes text in the file's code page, with the codes \U+XXXX and \M+nXXXX and control characters
// written with a caret.
class DxfDecoder {
 public:
  void SetPage(unsigned page) { m_page = page; }
  unsigned Page() const { return m_page; }
  std::wstring Text(std::string_view value) const;

 private:
  unsigned m_page = 936;  // for drawings that name no code page
};

// The code page of a name such as ANSI_936 or dos850; nothing if unknown.
std::optional<unsigned> DxfPageOf(std::string_view name);

}  // namespace devhost
