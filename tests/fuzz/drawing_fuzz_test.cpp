// Fixed runs of damaged drawings with constant seeds, short enough for every test run.
#include <gtest/gtest.h>

#include <random>

#include "devhost/core/base/journal.h"
#include "tests/fuzz/drawing_fuzz.h"
#include "tests/hostcore/small_drawing.h"

namespace {

// A drawing with a few parts changed, removed, duplicated or replaced by meaningful pieces.
std::string Damaged(const std::string& good, std::mt19937& random) {
  static const std::string bits[] = {"\n",
                                     "0\n",
                                     "-1",
                                     "99999999999",
                                     "\xFF\xFE",
                                     "0\nEOF\n",
                                     "0\nENDSEC\n",
                                     "1e308",
                                     "0\nSECTION\n2\n",
                                     "\r\n",
                                     std::string(1, '\0'),
                                     "0\nBLOCK\n2\nB\n",
                                     "2\n*Model_Space\n",
                                     "nan",
                                     "100\nX\n",
                                     "1001\nA\n",
                                     "1010\n1\n",
                                     "102\n{\n",
                                     "0\nVERTEX\n",
                                     "0\nSEQEND\n",
                                     "0\nINSERT\n2\nDOOR\n",
                                     "70\n-32768\n",
                                     "^J",
                                     "\\U+D800"};
  std::string text = good;
  for (int hit = static_cast<int>(random() % 8) + 1; hit > 0 && !text.empty(); --hit) {
    const std::size_t at = random() % text.size();
    switch (random() % 4) {
      case 0:
        text[at] = static_cast<char>(random());
        break;
      case 1:
        text.erase(at, random() % 60);
        break;
      case 2:
        text.insert(at, bits[random() % std::size(bits)]);
        break;
      default:
        text.insert(at, text.substr(random() % text.size(), random() % 300));
        break;
    }
  }
  return text;
}

}  // namespace

TEST(DrawingFuzz, ADamagedDrawingIsRewrittenWithoutErrors) {
  const std::string good = hosttest::SmallDrawing();
  std::mt19937 random(20240608);
  for (int round = 0; round < 2000; ++round) {
    const std::string text = Damaged(good, random);
    const std::wstring wrong = FuzzDrawing(text);
    ASSERT_TRUE(wrong.empty()) << "round " << round << ": " << devhost::Utf8(wrong);
  }
}

TEST(DrawingFuzz, RandomGroupsAreRewrittenWithoutErrors) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    std::string text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < 200; ++i)
      text += std::to_string(static_cast<int>(random() % 1100) - 10) + "\n" +
              std::to_string(random() % 50) + "\n";
    ASSERT_TRUE(FuzzDrawing(text).empty());
  }
}
