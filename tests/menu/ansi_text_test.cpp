// Decoding of tokens gives the same text as the kernel's strings.
#include <gtest/gtest.h>

#include <random>

#include "menu/ansi_text.h"

namespace {

bool Agrees(AnsiText& ansi, const std::string& narrow) {
  TWCString quick;
  ansi.DecodeTo(narrow, quick);
  return quick == TUString(narrow.data(), static_cast<int>(narrow.size()));
}

TEST(AnsiText, EveryPairOfBytesIsDecodedAsTheKernelDoes) {
  AnsiText ansi;
  for (int first = 1; first < 256; ++first)
    for (int second = 1; second < 256; second += first < 0x80 ? 51 : 1) {
      const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      ASSERT_TRUE(Agrees(ansi, pair)) << first << " " << second;
      ASSERT_TRUE(Agrees(ansi, "a" + pair + "\xC7\xBD")) << first << " " << second;
    }
}

TEST(AnsiText, RandomBytesAreDecodedAsTheKernelDoes) {
  AnsiText ansi;
  std::mt19937 random(3);
  for (int i = 0; i < 5000; ++i) {
    std::string narrow(random() % 230, ' ');
    for (char& c : narrow)
      c = static_cast<char>(random() % 3 ? 1 + random() % 255 : 0xB0 + random() % 32);
    ASSERT_TRUE(Agrees(ansi, narrow)) << i;
  }
}

TEST(AnsiText, TextsLongerThanATokenAreDecodedToo) {
  AnsiText ansi;
  for (const size_t length : {198u, 199u, 200u, 207u, 208u, 300u, 5000u}) {
    EXPECT_TRUE(Agrees(ansi, std::string(length, 'w'))) << length;
    EXPECT_TRUE(Agrees(ansi, std::string(length, 'w') + "\xC7\xBD")) << length;
  }
}

TEST(AnsiText, AnEmptyTextDecodesToAnEmptyText) {
  AnsiText ansi;
  EXPECT_TRUE(ansi.Decode("").empty());
}

}  // namespace
