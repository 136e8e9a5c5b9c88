// The text form of drawing files, one step above lines: pairs of a group code and a value, each
// with the line it stands on. Values stay bytes of the file; DxfDecoder makes text of them. Knows
// nothing of sections or objects. Used by the drawing reader.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace devhost {

struct DxfGroup {
  short code;
  std::string_view value;  // without its line end; blanks around it stay
  int line;                // of the code; the value stands on the next one
};

enum class DxfDamage { None, NotText, BadCode, CutOff, NoEnd, BehindEnd };

struct DxfScan {
  std::vector<DxfGroup> groups;  // all that could be read; comments (999) are left out
  DxfDamage damage = DxfDamage::None;
  int line = 0;  // where the damage is, from 1
};

// Reads pairs until the end mark (0, EOF), the end of the bytes or the first line that is no code.
DxfScan ScanDxf(std::string_view bytes);

std::string_view TrimBlanks(std::string_view text);

// Numbers as the format writes them; anything else behind the digits but blanks is no number.
std::optional<double> DxfReal(std::string_view value);
std::optional<long long> DxfInteger(std::string_view value);  // also "3.0", as some programs write
std::optional<unsigned long long> DxfHandle(std::string_view value);  // hexadecimal, not 0

// Text of the file's code page with the codes \U+XXXX and \M+nXXXX and the control characters that
// the format writes with a caret.
class DxfDecoder {
 public:
  void SetPage(unsigned page) { m_page = page; }
  unsigned Page() const { return m_page; }
  std::wstring Text(std::string_view value) const;

 private:
  unsigned m_page = 936;  // drawings of the field that name no code page
};

// The code page of a name such as ANSI_936 or dos850; nothing for one that nobody knows.
std::optional<unsigned> DxfPageOf(std::string_view name);

}  // namespace devhost
