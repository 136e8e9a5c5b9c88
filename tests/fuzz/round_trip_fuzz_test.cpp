// A short run of the round trip fuzzer with fixed seeds: its corpus, mutated.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "tests/fuzz/round_trip_fuzz.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Corpus() {
  std::vector<std::string> seeds;
  for (const auto& entry :
       fs::directory_iterator(fs::path(QVX_SOURCE_DIR) / "tests/fuzz/corpus/menu_round_trip")) {
    std::ifstream file(entry.path(), std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  std::sort(seeds.begin(), seeds.end());
  return seeds;
}

const char* const kPieces[] = {"[->",    "<-",      "<-<-",  " ",    "\"",       "^",  "^\"",
                               ";",      "]",       "{~=F}", "{",    "\n",       "\r", "\t",
                               "// c\n", "/* c */", "\xFF",  "\x81", "*SWITCH*", "\\"};

std::string Mutated(std::string text, std::mt19937& random) {
  for (unsigned change = random() % 4; change; --change) {
    const size_t at = random() % (text.size() + 1);
    switch (random() % 4) {
      case 0:
        text.insert(at, kPieces[random() % std::size(kPieces)]);
        break;
      case 1:
        text.erase(at, random() % 4);
        break;
      case 2:
        text.insert(at, text.substr(random() % (text.size() + 1), random() % 48));
        break;
      default:
        if (at < text.size()) text[at] = static_cast<char>(random());
    }
  }
  return text;
}

TEST(MenuRoundTripFuzz, TheMutatedCorpusKeepsTheInvariants) {
  const std::vector<std::string> seeds = Corpus();
  ASSERT_GE(seeds.size(), 5u);
  std::mt19937 random(7);
  for (int i = 0; i < 10000; ++i)
    FuzzMenuRoundTrip(Mutated(seeds[random() % seeds.size()], random));
}

}  // namespace
