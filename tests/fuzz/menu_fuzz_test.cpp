// A short run of the menu fuzzers with fixed seeds: the golden sources and their compiled files,
// cut, duplicated, spliced and with bytes changed; and the inputs kept from longer runs.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "tests/fuzz/menu_fuzz.h"
#include "tests/menu/menu_testing.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Sources() {
  std::vector<std::string> sources;
  for (const auto& entry : fs::directory_iterator(fs::path(QVX_SOURCE_DIR) / "tests/menu/golden"))
    if (entry.path().extension() == ".qmn") sources.push_back(ReadFile(entry.path().wstring()));
  std::sort(sources.begin(), sources.end());
  return sources;
}

const char* const kPieces[] = {"***",      "**",     "[->", "[<-<-", "\n",  "\"",          "//\n",
                               "/*",       "=",      ",",   "^",     "{~=", "]",           "\xFF",
                               "\x81\x5D", "SWITCH", "999", "1.5",   "\\",  "\xFF\xFE\xFF"};

std::string Mutated(const std::string& seed, const std::string& other, std::mt19937& random) {
  std::string text = seed;
  for (unsigned change = random() % 6; change; --change) {
    if (text.empty()) text = "x";
    const size_t at = random() % text.size();
    switch (random() % 6) {
      case 0:
        text[at] = static_cast<char>(random());
        break;
      case 1:
        text.erase(at, random() % 16);
        break;
      case 2:
        text.insert(at, kPieces[random() % std::size(kPieces)]);
        break;
      case 3:
        text.insert(at, text.substr(random() % text.size(), random() % 64));
        break;
      case 4:
        text.resize(at);
        break;
      case 5:
        text += other.substr(random() % (other.size() + 1));
        break;
    }
  }
  return text;
}

TEST(MenuFuzz, MutatedSourcesKeepTheInvariants) {
  const std::vector<std::string> seeds = Sources();
  ASSERT_FALSE(seeds.empty());
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i)
    FuzzMenuSource(Mutated(seeds[random() % seeds.size()], seeds[random() % seeds.size()], random));
}

TEST(MenuFuzz, MutatedCompiledFilesKeepTheInvariants) {
  std::vector<std::string> seeds;
  for (const std::string& source : Sources()) {
    Compiled compiled;
    Compile(source, compiled);
    seeds.push_back(SaveBytes(compiled.system));
  }
  ASSERT_FALSE(seeds.empty());
  std::mt19937 random(2);
  for (int i = 0; i < 20000; ++i)
    FuzzCompiledMenu(
        Mutated(seeds[random() % seeds.size()], seeds[random() % seeds.size()], random));
}

// The corpus of tools/fuzz merge: the smallest inputs with the same coverage as all inputs.
std::vector<std::string> Corpus(const char* target) {
  std::vector<std::string> inputs;
  for (const auto& entry :
       fs::directory_iterator(fs::path(QVX_SOURCE_DIR) / "tests/fuzz/corpus" / target))
    inputs.push_back(ReadFile(entry.path().wstring()));
  return inputs;
}

TEST(MenuFuzz, TheCorpusKeepsTheInvariants) {
  const std::vector<std::string> sources = Corpus("menu_source"),
                                 compiled = Corpus("compiled_menu");
  EXPECT_GT(sources.size(), 50u);
  EXPECT_GT(compiled.size(), 50u);
  for (const std::string& source : sources) FuzzMenuSource(source);
  for (const std::string& bytes : compiled) FuzzCompiledMenu(bytes);
}

}  // namespace
