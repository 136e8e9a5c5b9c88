// A short run of the in-place editor's fuzzer with fixed seeds, and its corpus.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/fuzz/corpus.h"
#include "tests/fuzz/edit_fuzz.h"
#include "tests/fuzz/edit_fuzz_model.h"

namespace {

std::string RandomBytes(std::mt19937& random, size_t most) {
  std::string bytes(random() % most, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

TEST(EditFuzz, RandomStreamsFollowTheModelAndReachEveryOperation) {
  std::mt19937 random(15);
  EditFuzzRun all;
  for (int i = 0; i < 800; ++i) all.Add(FuzzInPlaceEdit(RandomBytes(random, 2000)));
  for (const char* operation :
       {"create",      "delete",     "destroy", "focus", "font",     "hide", "highlight",
        "index",       "invalidate", "lock",    "menu",  "modified", "move", "next",
        "post",        "scroll",     "select",  "show",  "text",     "to",   "track",
        "unhighlight", "unlock",     "update",  "wheel"})
    EXPECT_GT(all.operations[operation], 0) << operation;
  for (const char* kind : {"begin", "type", "key", "arrow", "drag", "command", "notify", "view"})
    EXPECT_GT(all.checked[kind], 500) << kind;
  EXPECT_GT(all.nested, 500);
  EXPECT_GT(all.unloads, 10);
}

TEST(EditFuzz, TheCorpusFollowsTheModel) {
  EditFuzzRun all;
  for (const std::string& bytes : fuzz::ReadCorpus(QVX_SOURCE_DIR, "in_place_edit"))
    all.Add(FuzzInPlaceEdit(bytes));
  EXPECT_GT(all.records, 200);
  EXPECT_GT(all.checked["drag"], 0);
}

TEST(EditFuzz, AnEmptyStreamDoesNothing) {
  const EditFuzzRun run = FuzzInPlaceEdit("");
  EXPECT_EQ(run.records, 0);
  EXPECT_TRUE(run.operations.empty());
}

// The model itself, on the cases that its sentences name.
TEST(EditFuzz, TheModelMovesAndCopiesText) {
  using editfuzz::MovedText;
  EXPECT_EQ(MovedText(L"abcdefg", 1, 3, 6, false), L"adefbcg");
  EXPECT_EQ(MovedText(L"abcdefg", 4, 6, 1, false), L"aefbcdg");
  EXPECT_EQ(MovedText(L"abcdefg", 1, 3, 7, true), L"abcdefgbc");
  EXPECT_EQ(MovedText(L"abcdefg", 1, 3, 2, true), L"abcdefg");
}

}  // namespace
