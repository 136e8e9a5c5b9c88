// Wrapping of long one-line text for display.
#include "editor/text_wrap.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using qvx::UnwrapText;
using qvx::WrapText;

// Every character as wide as given.
std::vector<int> Widths(size_t count, int width) {
  std::vector<int> widths(count, width);
  std::partial_sum(widths.begin(), widths.end(), widths.begin());
  return widths;
}
std::wstring Wrap(const std::wstring& text, int width) {
  return WrapText(text, Widths(text.size(), 10), width);
}

TEST(WrapText, BreaksBeforeTheCharacterThatOverrunsTheLine) {
  EXPECT_EQ(Wrap(L"abcdefgh", 30), L"abc\r\ndef\r\ngh");
  EXPECT_EQ(Wrap(L"abcdefgh", 35), L"abc\r\ndef\r\ngh") << "the rest of a line stays empty";
  EXPECT_EQ(Wrap(L"abcdefgh", 39), L"abc\r\ndef\r\ngh");
  EXPECT_EQ(Wrap(L"abc", 30), L"abc");
  EXPECT_EQ(Wrap(L"", 30), L"");
}

TEST(WrapText, TheRestOfALineIsNotCountedTwice) {
  // Each line leaves 9 pixels; if they added up, later lines would lose characters.
  const std::wstring text(400, L'x');
  EXPECT_EQ(UnwrapText(Wrap(text, 39)).size(), 400u - (400 % 3 == 1));
  const std::wstring wrapped = Wrap(std::wstring(12, L'x'), 39);
  EXPECT_EQ(wrapped, L"xxx\r\nxxx\r\nxxx\r\nxxx");
}

TEST(WrapText, ALastCharacterThatWouldOverrunTheLineIsDropped) {
  EXPECT_EQ(Wrap(L"abcd", 30), L"abc") << "no break after the last but one";
  EXPECT_EQ(Wrap(L"abcdefg", 30), L"abc\r\ndef");
  EXPECT_EQ(Wrap(L"abcde", 30), L"abc\r\nde");
}

TEST(WrapText, ACharacterWiderThanALineIsNotCopied) {
  const std::wstring text = L"aXbc";
  EXPECT_EQ(WrapText(text, {10, 110, 120, 130}, 30), L"a\r\n") << "nothing fits any more";
  EXPECT_EQ(Wrap(L"abc", 0), L"");
  EXPECT_EQ(Wrap(L"abc", 5), L"");
}

TEST(WrapText, CharactersWithoutWidthNeedNoBreak) {
  EXPECT_EQ(WrapText(L"abcd", {0, 0, 0, 0}, 30), L"abcd");
  EXPECT_EQ(WrapText(L"abcd", {0, 0, 0, 0}, 0), L"abcd");
}

TEST(WrapText, ALongTextReadsBackWhole) {
  std::wstring text;
  for (int i = 0; i < 100000; ++i) text += static_cast<wchar_t>(L'A' + i % 50);
  std::vector<int> widths;
  int sum = 0;
  for (int i = 0; i < 100000; ++i) widths.push_back(sum += 5 + i * 7 % 11);
  const std::wstring back = UnwrapText(WrapText(text, widths, 1440));
  EXPECT_TRUE(back == text || back == text.substr(0, text.size() - 1));
}

TEST(WrapText, EveryLineButTheLastIsFullAndNoneIsTooWide) {
  for (int width = 16; width < 200; width += 7) {
    std::vector<int> own, widths;
    for (int i = 0, sum = 0; i < 300; ++i) {
      own.push_back(1 + (i * 13 + width) % 16);
      widths.push_back(sum += own.back());
    }
    const std::wstring text(300, L'x');
    const std::wstring wrapped = WrapText(text, widths, width);
    size_t next = 0;
    int line = 0;
    for (size_t i = 0; i < wrapped.size(); ++i) {
      if (wrapped[i] == L'\r') {
        EXPECT_GT(line + own[next], width) << "the next character did not fit";
        line = 0;
        ++i;
      } else {
        line += own[next++];
        EXPECT_LE(line, width);
      }
    }
    EXPECT_GE(next, 299u);
  }
}

TEST(UnwrapText, RemovesEveryPairOfReturnAndLineFeed) {
  EXPECT_EQ(UnwrapText(L"ab\r\ncd\r\n"), L"abcd");
  EXPECT_EQ(UnwrapText(L"\r\n\r\n"), L"");
  EXPECT_EQ(UnwrapText(L"a\rb\nc\r\r\n\r"), L"a\rb\nc\r\r");
  EXPECT_EQ(UnwrapText(L"a\r"), L"a\r");
  EXPECT_EQ(UnwrapText(L""), L"");
}

TEST(UnwrapText, RemovesBreaksThatTheUserTypedToo) {
  EXPECT_EQ(UnwrapText(L"abc\r\nd\r\nef"), L"abcdef");
}

}  // namespace
