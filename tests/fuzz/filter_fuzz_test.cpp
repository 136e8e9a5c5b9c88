// A short run of the message filter's fuzzers with fixed seeds: random streams of records, and
// random files that map commands to help keywords.
#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>

#include "tests/fuzz/corpus.h"
#include "tests/fuzz/filter_fuzz.h"

namespace {

std::string RandomBytes(std::mt19937& random, size_t most) {
  std::string bytes(random() % most, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

TEST(FilterFuzz, RandomStreamsKeepTheInvariantsAndReachEveryOperation) {
  std::mt19937 random(13);
  FilterFuzzRun all;
  for (int i = 0; i < 2500; ++i) all.Add(FuzzMessageFilter(RandomBytes(random, 5000)));
  for (const char* operation :
       {"begin", "char", "clear", "close",  "edit",    "end",  "help", "hide",   "menu",  "model",
        "move",  "post", "print", "resize", "restart", "send", "show", "toggle", "wheel", "zoom"})
    EXPECT_GT(all.operations[operation], 0) << operation;
  EXPECT_GT(all.swallowed, 0);
  EXPECT_GT(all.messages, 10 * all.swallowed / 9) << "some pass";
  EXPECT_GT(all.nested, 0);
  EXPECT_GT(all.unloads, 0);
  EXPECT_GT(all.previewSteps, 0);
  EXPECT_GT(all.previewTurnOffs, 0);
}

TEST(FilterFuzz, TheCorpusKeepsTheInvariants) {
  FilterFuzzRun all;
  for (const std::string& bytes : fuzz::ReadCorpus(QVX_SOURCE_DIR, "message_filter"))
    all.Add(FuzzMessageFilter(bytes));
  EXPECT_GT(all.messages, 50);
  EXPECT_GT(all.swallowed, 0);
  int found = 0;
  for (const std::string& bytes : fuzz::ReadCorpus(QVX_SOURCE_DIR, "help_map"))
    found += FuzzHelpMap(bytes);
  EXPECT_GT(found, 0);
}

TEST(FilterFuzz, AnEmptyStreamDoesNothing) {
  const FilterFuzzRun run = FuzzMessageFilter("");
  EXPECT_EQ(run.messages, 0);
  EXPECT_TRUE(run.operations.empty());
}

TEST(FilterFuzz, RandomHelpMapsKeepTheInvariants) {
  const std::string pieces[] = {"TWALL", "a",     "line2",    "\xC7",
                                "\"",    "\"a b", "\xD6\xD0", std::string(300, 'x')};
  const std::string gaps[] = {" ", "  ", "\t", "\n", "\r\n", "", std::string(1, '\0')};
  std::mt19937 random(14);
  int found = 0;
  for (int i = 0; i < 3000; ++i) {
    std::string bytes = RandomBytes(random, 12);
    for (unsigned left = random() % 12; left; --left) {
      bytes += pieces[random() % std::size(pieces)];
      bytes += gaps[random() % std::size(gaps)];
    }
    found += FuzzHelpMap(bytes);
  }
  EXPECT_GT(found, 100);
}

}  // namespace
