// The encoder of screenshots, read back chunk by chunk.
#include <gtest/gtest.h>
#include <zlib.h>

#include <map>

#include "devhost/play/png_image.h"

namespace devhost {
namespace {

const Bytef* BytesOf(const std::string& text) {
  return reinterpret_cast<const Bytef*>(text.data());
}

unsigned BigEndian(const std::string& bytes, std::size_t at) {
  unsigned value = 0;
  for (std::size_t i = at; i < at + 4; ++i)
    value = value << 8 | static_cast<unsigned char>(bytes.at(i));
  return value;
}

// The data of each chunk by its type; checks signature, lengths and checksums.
std::map<std::string, std::string> Chunks(const std::string& png) {
  std::map<std::string, std::string> chunks;
  EXPECT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1A\n", 8));
  for (std::size_t at = 8; at < png.size();) {
    const unsigned size = BigEndian(png, at);
    const std::string checked = png.substr(at + 4, size + 4);
    EXPECT_EQ(BigEndian(png, at + 8 + size),
              crc32(0, BytesOf(checked), static_cast<uInt>(checked.size())));
    chunks[checked.substr(0, 4)] = checked.substr(4);
    at += size + 12;
  }
  return chunks;
}

Picture Decode(const std::string& png) {
  const std::map<std::string, std::string> chunks = Chunks(png);
  EXPECT_EQ(chunks.size(), 3u);
  const std::string& head = chunks.at("IHDR");
  const std::string& data = chunks.at("IDAT");
  EXPECT_EQ(chunks.at("IEND"), "");
  EXPECT_EQ(head.substr(8), std::string("\x08\x02\0\0\0", 5));
  Picture picture;
  picture.width = static_cast<int>(BigEndian(head, 0));
  picture.height = static_cast<int>(BigEndian(head, 4));
  const auto width = static_cast<std::size_t>(picture.width) * 3;
  std::string rows((width + 1) * static_cast<std::size_t>(picture.height), '\0');
  uLongf size = static_cast<uLongf>(rows.size());
  EXPECT_EQ(uncompress(reinterpret_cast<Bytef*>(rows.data()), &size, BytesOf(data),
                       static_cast<uLong>(data.size())),
            Z_OK);
  EXPECT_EQ(size, rows.size());
  for (std::size_t at = 0; at < rows.size(); ++at) {
    if (at % (width + 1) == 0) {
      EXPECT_EQ(rows[at], 2) << "the filter of a row";
      continue;
    }
    const std::size_t count = picture.rgb.size();
    const int above = count >= width ? picture.rgb[count - width] : 0;
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

TEST(PngImage, DecodesToTheSamePixels) {
  ExpectRoundTrip(Pattern(1, 1, [](int) { return 200u; }));
  ExpectRoundTrip(Pattern(300, 40, [](int) { return 255u; }));
  ExpectRoundTrip(
      Pattern(31, 17, [](int i) { return static_cast<unsigned>(i) * 2654435761u >> 13; }));
}

TEST(PngImage, PlainAreasCompress) {
  EXPECT_LT(EncodePng(Pattern(300, 40, [](int) { return 255u; })).size(), 1000u);
}

TEST(PngImage, ChecksumOfAnEmptyEndChunkIsThePublishedOne) {
  const std::string png = EncodePng(Pattern(1, 1, [](int) { return 0u; }));
  EXPECT_EQ(BigEndian(png, png.size() - 4), 0xAE426082u);
}

TEST(PngImage, InconsistentSizesGiveNoBytes) {
  EXPECT_EQ(EncodePng({0, 5, {}}), "");
  EXPECT_EQ(EncodePng({2, 2, std::vector<std::uint8_t>(11)}), "");
  EXPECT_EQ(EncodePng({100000, 1, {}}), "");
}

}  // namespace
}  // namespace devhost
