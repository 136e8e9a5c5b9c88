#include "ground/utf8_text.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8Text, EachLengthBeginsAndEndsWhereUtf8SaysSo) {
  EXPECT_EQ(qvx::ToUtf8(L""), "");
  EXPECT_EQ(qvx::ToUtf8(L"\x7F"), "\x7F");
  EXPECT_EQ(qvx::ToUtf8(L"\u0080\u07FF"), "\xC2\x80\xDF\xBF");
  EXPECT_EQ(qvx::ToUtf8(L"\u0800\uFFFF"), "\xE0\xA0\x80\xEF\xBF\xBF");
  const wchar_t pairs[] = {0xD800, 0xDC00, 0xDBFF, 0xDFFF, 0};
  EXPECT_EQ(qvx::ToUtf8(pairs), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Utf8Text, ALoneSurrogateBecomesTheReplacementCharacter) {
  const wchar_t high[] = {L'a', 0xDBFF, L'b', 0xD800, 0};
  EXPECT_EQ(qvx::ToUtf8(high),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  const wchar_t low[] = {0xDC00, 0xD800, 0xD800, 0xDC00, 0};
  EXPECT_EQ(qvx::ToUtf8(low), "\xEF\xBF\xBD\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(Utf8Text, AUnitOfThirtyTwoBitsIsOneCharacter) {
  if (sizeof(wchar_t) < 4) GTEST_SKIP() << "units have 16 bits here";
  EXPECT_EQ(qvx::ToUtf8(L"\U00010000\U0010FFFF"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  const std::wstring above(1, static_cast<wchar_t>(0x110000));
  EXPECT_EQ(qvx::ToUtf8(above), "\xEF\xBF\xBD");
}

}  // namespace
