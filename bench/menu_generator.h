// Menus of any size with the product main menu's mix: the same kinds of line in the same shares,
// code page 936, and icons, switches and blocks in proportion. The same seed gives the same bytes
// on every machine. Used by the benchmarks only.
#pragma once

#include <cstdint>
#include <string>

// Returns exactly `lines` lines, at least 100.
std::string GenerateMenu(int lines, uint64_t seed);

// Counts of the kinds of line in a source. Every line end counts as one byte, also CR LF.
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
