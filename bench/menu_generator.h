// Menus of any size that look like the product's main menu: the same kinds of line in the same
// shares, code page 936, and as many icons, switches and blocks as a menu of that size would have.
// The same seed gives the same bytes on every machine. Used by the benchmarks only.
#pragma once

#include <cstdint>
#include <string>

// Exactly `lines` newlines; at least 100 are made.
std::string GenerateMenu(int lines, uint64_t seed);

// What kinds of line a source is made of. A line end counts as one byte, CR LF too.
struct MenuMix {
  int lines = 0;
  int comments = 0;
  int blank = 0;
  int blocks = 0;
  int masks = 0;  // of the blocks
  int items = 0;
  int withIcon = 0;  // of the items, as all below
  int separators = 0;
  int opening = 0;
  int closing = 0;
  int switchLines = 0;
  int conditions = 0;
  int switches = 0;
  int states = 0;
  int resources = 0;
  size_t bytes = 0;
  size_t bytesOfItems = 0;
  size_t bytesOfResources = 0;
};
MenuMix MeasureMix(const std::string& source);
