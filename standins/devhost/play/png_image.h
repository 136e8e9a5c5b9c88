// Pictures as PNG bytes, for the screenshots of play scripts. Written here because nothing that the
// host may link brings an encoder; it knows one form only, 24 bits without transparency.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace devhost {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;  // rows from the top, three bytes a point, no padding
};

// Empty when the picture's numbers don't fit together.
std::string EncodePng(const Picture& picture);

}  // namespace devhost
