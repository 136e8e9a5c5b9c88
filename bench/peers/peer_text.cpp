#include "bench/peers/peer_text.h"

#include <iconv.h>

#include <cstdint>
#include <vector>

namespace peer {
namespace {

constexpr char16_t kInvalid = 0xFFFD;

char16_t ConvertOne(iconv_t converter, char* bytes, size_t count) {
  char16_t unit = kInvalid;
  char* out = reinterpret_cast<char*>(&unit);
  size_t room = sizeof unit;
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  if (iconv(converter, &bytes, &count, &out, &room) != 0 || count != 0) return kInvalid;
  return unit;
}

// Indexed by both bytes of a character; a single byte is at its own value.
class Table {
 public:
  Table() : m_units(0x10000, kInvalid) {
    iconv_t converter = iconv_open("UTF-16LE", "CP936");
    for (unsigned first = 0; first < 256; ++first) {
      char bytes[2] = {static_cast<char>(first), 0};
      m_units[first] = ConvertOne(converter, bytes, 1);
      for (unsigned second = 0; first >= 0x80 && second < 256; ++second) {
        bytes[1] = static_cast<char>(second);
        m_units[first << 8 | second] = ConvertOne(converter, bytes, 2);
      }
    }
    iconv_close(converter);
  }

  char16_t At(unsigned code) const { return m_units[code]; }

 private:
  std::vector<char16_t> m_units;
};

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

}  // namespace

std::u16string Widen(std::string_view narrow) {
  static const Table table;
  std::u16string wide;
  wide.reserve(narrow.size());
  for (size_t i = 0; i < narrow.size(); ++i) {
    const unsigned first = Byte(narrow[i]);
    if (first < 0x80) {
      wide.push_back(static_cast<char16_t>(first));
      continue;
    }
    if (i + 1 < narrow.size()) {
      const char16_t unit = table.At(first << 8 | Byte(narrow[i + 1]));
      if (unit != kInvalid) {
        wide.push_back(unit);
        ++i;
        continue;
      }
    }
    wide.push_back(table.At(first));
  }
  return wide;
}

}  // namespace peer
