// See json_text.h.
#include "ground/json_text.h"

#include <cstdio>

#include "ground/utf8_text.h"

namespace qvx {
// Quotes, backslashes and controls are single bytes of UTF-8, and no byte of a longer sequence.
std::string JsonString(const std::wstring& text) {
  std::string out = "\"";
  for (const char byte : ToUtf8(text)) {
    if (byte == '"' || byte == '\\') {
      out += '\\';
      out += byte;
    } else if (static_cast<unsigned char>(byte) < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
      out += escape;
    } else {
      out += byte;
    }
  }
  return out + "\"";
}

const char* JsonWord(bool value) { return value ? "true" : "false"; }

std::string JsonRect(const RECT& r) {
  return "[" + std::to_string(r.left) + "," + std::to_string(r.top) + "," +
         std::to_string(r.right) + "," + std::to_string(r.bottom) + "]";
}

}  // namespace qvx
