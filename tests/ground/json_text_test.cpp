#include "ground/json_text.h"

#include <gtest/gtest.h>

namespace {

TEST(JsonText, TextIsEscapedAndAlwaysValidUtf8) {
  EXPECT_EQ(qvx::JsonString(L"a\"b\\c\n"), "\"a\\\"b\\\\c\\u000a\"");
  const wchar_t pair[] = {0xD83D, 0xDE00, 0};
  EXPECT_EQ(qvx::JsonString(pair), "\"\xF0\x9F\x98\x80\"");
  const wchar_t lone[] = {0xD83D, L'x', 0xDE00, 0};
  EXPECT_EQ(qvx::JsonString(lone), "\"\xEF\xBF\xBDx\xEF\xBF\xBD\"");
  EXPECT_EQ(qvx::JsonString(L"é"), "\"\xC3\xA9\"");
}

}  // namespace
