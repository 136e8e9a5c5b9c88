// Searches and conversions of plain text, eight bytes at a time, for the scanner and the line
// parser.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace bytes {

static_assert(std::endian::native == std::endian::little);
constexpr std::uint64_t kOnes = 0x0101010101010101u;
constexpr std::uint64_t kHighBits = 0x8080808080808080u;

inline std::uint64_t EightAt(const char* p) {
  std::uint64_t eight;
  std::memcpy(&eight, p, 8);
  return eight;
}

// Sets the high bit of each byte that equals `c`; bits above the lowest of them may be wrong.
constexpr std::uint64_t Marks(std::uint64_t eight, char c) {
  const std::uint64_t zero = eight ^ kOnes * static_cast<unsigned char>(c);
  return (zero - kOnes) & ~zero & kHighBits;
}

// The first byte that is one of the stops; `end` when there is none.
template <char... kStops>
const char* FindAny(const char* p, const char* end) {
  for (; end - p >= 8; p += 8)
    if (const std::uint64_t marks = (Marks(EightAt(p), kStops) | ...))
      return p + std::countr_zero(marks) / 8;
  while (p < end && ((*p != kStops) && ...)) ++p;
  return p;
}

// The last bytes of a text, up to eight, followed by zeros. The eight bytes before `end` must be
// readable, also those before `p`.
inline std::uint64_t LastOf(const char* p, const char* end) {
  return end == p ? 0 : EightAt(end - 8) >> 8 * (8 - (end - p));
}

// `out` has room for one unit per byte. The inner loop has a fixed length, so that it becomes
// vector code.
inline wchar_t* WidenAscii(const char* p, const char* end, wchar_t* out) {
  for (; end - p >= 8; p += 8, out += 8) {
    std::uint8_t eight[8];
    std::memcpy(eight, p, 8);
    for (int i = 0; i < 8; ++i) out[i] = static_cast<wchar_t>(eight[i]);
  }
  while (p < end) *out++ = static_cast<wchar_t>(*p++);
  return out;
}

}  // namespace bytes
