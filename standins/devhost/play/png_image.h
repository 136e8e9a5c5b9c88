// Pictures as PNG bytes, for the screenshots of play scripts. One form only: 24 bits a pixel, no
// transparency. Compression and checksums are zlib's.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace devhost {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;  // rows from the top, three bytes a pixel, no padding
};

// Empty when the picture's numbers do not fit together.
std::string EncodePng(const Picture& picture);

}  // namespace devhost
