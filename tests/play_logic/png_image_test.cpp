// The screenshots' encoder, read back by a decoder that knows just the forms that it writes.
#include <gtest/gtest.h>

#include <stdexcept>

#include "devhost/play/png_image.h"

namespace devhost {
namespace {

// Inflates one block with fixed codes.
class Inflater {
 public:
  explicit Inflater(const std::string& bytes) : m_bytes(bytes) {}

  std::string Run() {
    EXPECT_EQ(Bits(1), 1u);
    EXPECT_EQ(Bits(2), 1u);
    std::string out;
    for (int symbol; (symbol = Symbol()) != 256;) {
      if (symbol < 256)
        out += static_cast<char>(symbol);
      else
        Copy(symbol, &out);
    }
    return out;
  }

 private:
  unsigned Bit() {
    if (m_at >= m_bytes.size() * 8) throw std::runtime_error("the stream is cut off");
    const unsigned byte = static_cast<unsigned char>(m_bytes[m_at / 8]);
    return byte >> (m_at++ % 8) & 1;
  }
  unsigned Bits(int count) {
    unsigned value = 0;
    for (int i = 0; i < count; ++i) value |= Bit() << i;
    return value;
  }
  int Symbol() {
    unsigned code = 0;
    for (int i = 0; i < 7; ++i) code = code << 1 | Bit();
    if (code < 24) return static_cast<int>(code) + 256;
    code = code << 1 | Bit();
    if (code >= 0x30 && code < 0xC0) return static_cast<int>(code) - 0x30;
    if (code >= 0xC0 && code < 0xC8) return static_cast<int>(code) - 0xC0 + 280;
    code = code << 1 | Bit();
    return static_cast<int>(code) - 0x190 + 144;
  }
  void Copy(int symbol, std::string* out) {
    static const int base[] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                               31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
    static const int extra[] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
    const int length = base[symbol - 257] + static_cast<int>(Bits(extra[symbol - 257]));
    EXPECT_EQ(Bits(5), 0u) << "a distance other than 1";
    out->append(static_cast<std::size_t>(length), out->back());
  }

  const std::string& m_bytes;
  std::size_t m_at = 0;
};

unsigned Big(const std::string& bytes, std::size_t at) {
  unsigned value = 0;
  for (std::size_t i = at; i < at + 4; ++i)
    value = value << 8 | static_cast<unsigned char>(bytes.at(i));
  return value;
}

Picture Decode(const std::string& png) {
  Picture picture;
  EXPECT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1A\n", 8));
  EXPECT_EQ(png.substr(12, 4), "IHDR");
  picture.width = static_cast<int>(Big(png, 16));
  picture.height = static_cast<int>(Big(png, 20));
  EXPECT_EQ(png.substr(37, 4), "IDAT");
  const std::string stream = png.substr(43, Big(png, 33) - 6);
  const std::string rows = Inflater(stream).Run();
  const auto width = static_cast<std::size_t>(picture.width) * 3;
  EXPECT_EQ(rows.size(), (width + 1) * static_cast<std::size_t>(picture.height));
  for (std::size_t at = 0; at < rows.size(); ++at) {
    if (at % (width + 1) == 0) {
      EXPECT_EQ(rows[at], 2);
      continue;
    }
    const std::size_t size = picture.rgb.size();
    const int above = size >= width ? picture.rgb[size - width] : 0;
    picture.rgb.push_back(static_cast<std::uint8_t>(rows[at] + above));
  }
  return picture;
}

Picture Pattern(int width, int height, unsigned (*value)(int)) {
  Picture picture{width, height, {}};
  for (int i = 0; i < width * height * 3; ++i)
    picture.rgb.push_back(static_cast<std::uint8_t>(value(i)));
  return picture;
}

void ExpectRoundTrip(const Picture& picture) {
  const Picture back = Decode(EncodePng(picture));
  EXPECT_EQ(back.width, picture.width);
  EXPECT_EQ(back.height, picture.height);
  EXPECT_EQ(back.rgb, picture.rgb);
}

TEST(PngImage, PlainAndNoisyPicturesComeBack) {
  ExpectRoundTrip(Pattern(1, 1, [](int) { return 200u; }));
  ExpectRoundTrip(Pattern(300, 40, [](int) { return 255u; }));
  ExpectRoundTrip(
      Pattern(31, 17, [](int i) { return static_cast<unsigned>(i) * 2654435761u >> 13; }));
}

// The encoder's symbol for a run changes at each power of two.
TEST(PngImage, RunsOfEveryLengthComeBack) {
  for (int length = 1; length < 600; ++length) {
    Picture picture{(length + 3) / 3 + 1, 1, {}};
    picture.rgb.assign(static_cast<std::size_t>(picture.width) * 3, 7);
    for (std::size_t i = static_cast<std::size_t>(length); i < picture.rgb.size(); ++i)
      picture.rgb[i] = static_cast<std::uint8_t>(9 + i);
    ExpectRoundTrip(picture);
  }
}

TEST(PngImage, TheChecksumsAreTheFormats) {
  const std::string png = EncodePng(Pattern(1, 1, [](int) { return 0u; }));
  EXPECT_EQ(Big(png, png.size() - 4), 0xAE426082u);  // of an empty IEND, in every such file
}

TEST(PngImage, NumbersThatDoNotFitGiveNothing) {
  EXPECT_EQ(EncodePng({0, 5, {}}), "");
  EXPECT_EQ(EncodePng({2, 2, std::vector<std::uint8_t>(11)}), "");
  EXPECT_EQ(EncodePng({100000, 1, {}}), "");
}

}  // namespace
}  // namespace devhost
