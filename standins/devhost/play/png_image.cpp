// The PNG encoder: each row is stored as its difference to the row above, which turns the plain
// areas of a window into zeros, and the deflate stream knows literals and runs of one byte only.
#include "devhost/play/png_image.h"

#include <algorithm>
#include <array>

namespace devhost {
namespace {

constexpr int kLargestSide = 32768;
constexpr std::uint8_t kFilterUp = 2;
constexpr std::size_t kShortestRun = 3;
constexpr std::size_t kLongestRun = 258;

std::array<std::uint32_t, 256> MakeCrcTable() {
  std::array<std::uint32_t, 256> table;
  for (std::uint32_t i = 0; i < 256; ++i) {
    std::uint32_t c = i;
    for (int bit = 0; bit < 8; ++bit) c = c & 1 ? 0xEDB88320u ^ c >> 1 : c >> 1;
    table[i] = c;
  }
  return table;
}

std::uint32_t Crc(const std::string& bytes) {
  static const std::array<std::uint32_t, 256> table = MakeCrcTable();
  std::uint32_t crc = 0xFFFFFFFFu;
  for (const char byte : bytes)
    crc = table[(crc ^ static_cast<std::uint8_t>(byte)) & 255] ^ crc >> 8;
  return ~crc;
}

std::uint32_t Adler(const std::string& bytes) {
  std::uint32_t a = 1, b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<std::uint8_t>(byte)) % 65521;
    b = (b + a) % 65521;
  }
  return b << 16 | a;
}

void AppendBig(std::string* out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out->push_back(static_cast<char>(value >> shift));
}

// A deflate stream of one block with the fixed codes.
class Deflater {
 public:
  std::string Run(const std::string& bytes) {
    Bits(1, 1);  // the last block
    Bits(1, 2);  // fixed codes
    for (std::size_t at = 0; at < bytes.size();) {
      Literal(static_cast<std::uint8_t>(bytes[at]));
      std::size_t run = RunLength(bytes, at + 1, bytes[at]);
      at += 1 + run;
      for (; run >= kShortestRun; run -= std::min(run, kLongestRun))
        Repeat(std::min(run, kLongestRun));
      for (; run > 0; --run) Literal(static_cast<std::uint8_t>(bytes[at - 1]));
    }
    Symbol(256);
    if (m_count) m_out.push_back(static_cast<char>(m_held));
    return std::move(m_out);
  }

 private:
  static std::size_t RunLength(const std::string& bytes, std::size_t from, char byte) {
    std::size_t end = from;
    while (end < bytes.size() && bytes[end] == byte) ++end;
    return end - from;
  }

  void Bits(std::uint32_t value, int count) {
    m_held |= value << m_count;
    for (m_count += count; m_count >= 8; m_count -= 8) {
      m_out.push_back(static_cast<char>(m_held));
      m_held >>= 8;
    }
  }

  // Codes go in with their highest bit first.
  void Code(std::uint32_t code, int count) {
    for (int bit = count - 1; bit >= 0; --bit) Bits(code >> bit & 1, 1);
  }

  void Symbol(int symbol) {
    if (symbol < 144)
      Code(static_cast<std::uint32_t>(0x30 + symbol), 8);
    else if (symbol < 256)
      Code(static_cast<std::uint32_t>(0x190 + symbol - 144), 9);
    else if (symbol < 280)
      Code(static_cast<std::uint32_t>(symbol - 256), 7);
    else
      Code(static_cast<std::uint32_t>(0xC0 + symbol - 280), 8);
  }

  void Literal(std::uint8_t byte) { Symbol(byte); }

  // The byte before, `length` more times: distance 1.
  void Repeat(std::size_t length) {
    if (length == kLongestRun) {
      Symbol(285);
    } else {
      // Lengths 3..10 have a symbol each; from there four symbols share each number of extra bits.
      const auto rest = static_cast<std::uint32_t>(length - kShortestRun);
      int extra = 0;
      while (rest >> extra >= 8) ++extra;
      Symbol(257 + 4 * extra + static_cast<int>(rest >> extra));
      Bits(rest & ((1u << extra) - 1), extra);
    }
    Code(0, 5);
  }

  std::string m_out;
  std::uint32_t m_held = 0;
  int m_count = 0;
};

void AppendChunk(std::string* png, const char* type, const std::string& data) {
  AppendBig(png, static_cast<std::uint32_t>(data.size()));
  const std::string checked = type + data;
  *png += checked;
  AppendBig(png, Crc(checked));
}

std::string FilteredRows(const Picture& picture) {
  const auto width = static_cast<std::size_t>(picture.width) * 3;
  std::string rows;
  rows.reserve((width + 1) * static_cast<std::size_t>(picture.height));
  for (std::size_t row = 0; row < static_cast<std::size_t>(picture.height); ++row) {
    rows.push_back(static_cast<char>(kFilterUp));
    for (std::size_t i = row * width; i < (row + 1) * width; ++i)
      rows.push_back(static_cast<char>(picture.rgb[i] - (row ? picture.rgb[i - width] : 0)));
  }
  return rows;
}

}  // namespace

std::string EncodePng(const Picture& picture) {
  if (picture.width < 1 || picture.height < 1 || picture.width > kLargestSide ||
      picture.height > kLargestSide)
    return {};
  const auto points =
      static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  if (picture.rgb.size() != points * 3) return {};
  std::string png("\x89PNG\r\n\x1A\n", 8);
  std::string head;
  AppendBig(&head, static_cast<std::uint32_t>(picture.width));
  AppendBig(&head, static_cast<std::uint32_t>(picture.height));
  head += std::string("\x08\x02\0\0\0", 5);  // 8 bits a channel, three channels, no interlacing
  AppendChunk(&png, "IHDR", head);
  const std::string rows = FilteredRows(picture);
  std::string data("\x78\x01", 2);
  data += Deflater().Run(rows);
  AppendBig(&data, Adler(rows));
  AppendChunk(&png, "IDAT", data);
  AppendChunk(&png, "IEND", "");
  return png;
}

}  // namespace devhost
