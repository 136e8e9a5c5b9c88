// The PNG encoder. Each row is stored as its difference to the row above, which turns the plain
// areas of a window into zeros.
#include "devhost/play/png_image.h"

#include <zlib.h>

namespace devhost {
namespace {

constexpr int kMaxSide = 32768;
constexpr std::uint8_t kFilterUp = 2;

const Bytef* BytesOf(const std::string& text) {
  return reinterpret_cast<const Bytef*>(text.data());
}

void AppendBigEndian(std::string* out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out->push_back(static_cast<char>(value >> shift));
}

void AppendChunk(std::string* png, const char* type, const std::string& data) {
  AppendBigEndian(png, static_cast<std::uint32_t>(data.size()));
  const std::string checked = type + data;
  *png += checked;
  AppendBigEndian(png, static_cast<std::uint32_t>(
                           crc32(0, BytesOf(checked), static_cast<uInt>(checked.size()))));
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

std::string Compressed(const std::string& bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  std::string out(size, '\0');
  if (compress(reinterpret_cast<Bytef*>(out.data()), &size, BytesOf(bytes),
               static_cast<uLong>(bytes.size())) != Z_OK)
    return {};
  out.resize(size);
  return out;
}

}  // namespace

std::string EncodePng(const Picture& picture) {
  if (picture.width < 1 || picture.height < 1 || picture.width > kMaxSide ||
      picture.height > kMaxSide)
    return {};
  const auto pixels =
      static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  if (picture.rgb.size() != pixels * 3) return {};
  const std::string data = Compressed(FilteredRows(picture));
  if (data.empty()) return {};
  std::string png("\x89PNG\r\n\x1A\n", 8);
  std::string head;
  AppendBigEndian(&head, static_cast<std::uint32_t>(picture.width));
  AppendBigEndian(&head, static_cast<std::uint32_t>(picture.height));
  head += std::string("\x08\x02\0\0\0", 5);  // 8 bits a channel, three channels, no interlacing
  AppendChunk(&png, "IHDR", head);
  AppendChunk(&png, "IDAT", data);
  AppendChunk(&png, "IEND", "");
  return png;
}

}  // namespace devhost
