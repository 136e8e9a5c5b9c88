#include "tools/qmn/tool_text.h"

#include <ostream>

#include "afxstr.h"

namespace {

constexpr unsigned kReplacement = 0xFFFD;
constexpr unsigned kUtf8Page = 65001;

bool IsHigh(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

char Trail(unsigned bits) { return static_cast<char>(0x80 | (bits & 0x3F)); }

void AppendUtf8(std::string& out, unsigned c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += {static_cast<char>(0xC0 | c >> 6), Trail(c)};
  } else if (c < 0x10000) {
    out += {static_cast<char>(0xE0 | c >> 12), Trail(c >> 6), Trail(c)};
  } else {
    out += {static_cast<char>(0xF0 | c >> 18), Trail(c >> 12), Trail(c >> 6), Trail(c)};
  }
}

}  // namespace

std::string Utf8(std::wstring_view units) {
  std::string out;
  for (size_t i = 0; i < units.size(); ++i) {
    unsigned c = static_cast<unsigned>(units[i]) & 0xFFFF;
    const unsigned next = i + 1 < units.size() ? static_cast<unsigned>(units[i + 1]) & 0xFFFF : 0;
    if (IsHigh(c) && IsLow(next)) {
      c = 0x10000 + ((c & 0x3FF) << 10 | (next & 0x3FF));
      ++i;
    } else if (IsHigh(c) || IsLow(c)) {
      c = kReplacement;
    }
    AppendUtf8(out, c);
  }
  return out;
}

std::wstring Wide(std::string_view utf8) { return AnsiToWide(utf8, kUtf8Page); }

void ReportError(const QmnStreams& streams, const std::string& where, const std::string& text) {
  streams.err << where << ": " << (streams.colour ? "\x1b[1;31merror:\x1b[0m " : "error: ") << text
              << "\n";
}
