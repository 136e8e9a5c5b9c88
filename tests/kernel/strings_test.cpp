#include "kernel/twcstring.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "kernel/tsplitpath.h"

TEST(TWCString, AnEmptyOneReadsAsEmptyTextWithoutStorage) {
  const TWCString plain, promised(256), fromNull(static_cast<const wchar_t*>(nullptr));
  EXPECT_STREQ(plain, L"");
  EXPECT_STREQ(promised, L"");
  EXPECT_STREQ(fromNull, L"");
  EXPECT_TRUE(promised.IsEmpty());
  EXPECT_EQ(promised[0], 0);
}

TEST(TWCString, KeepsWhatItIsGivenThroughCopyAndMove) {
  TWCString a(L"绘制墙体");
  TWCString b(a), c;
  c = b;
  TWCString d(std::move(b));
  EXPECT_STREQ(a, L"绘制墙体");
  EXPECT_STREQ(c, L"绘制墙体");
  EXPECT_STREQ(d, L"绘制墙体");
  EXPECT_EQ(d.Length(), 4);
  c = L"x";
  EXPECT_STREQ(c, L"x");
  EXPECT_STREQ(d, L"绘制墙体");
}

TEST(TWCString, GrowsByUnitsAndByTexts) {
  TWCString text;
  std::wstring expected;
  for (int i = 0; i < 1000; ++i) {
    text += static_cast<wchar_t>(L'a' + i % 26);
    expected += static_cast<wchar_t>(L'a' + i % 26);
    if (i % 100 == 0) {
      text += L"--";
      expected += L"--";
    }
  }
  EXPECT_EQ(expected, text.c_str());
  EXPECT_EQ(text.Length(), static_cast<int>(expected.size()));
}

TEST(TWCString, TakesPartsOfItself) {
  TWCString text(L"abcdef");
  text = text.c_str() + 2;
  EXPECT_STREQ(text, L"cdef");
  text += text;
  EXPECT_STREQ(text, L"cdefcdef");
  text.Append(text.c_str() + 6, 2);
  EXPECT_STREQ(text, L"cdefcdefef");
  TWCString grown(L"ab");
  for (int i = 0; i < 5; ++i) grown.Append(grown.c_str(), grown.Length());
  EXPECT_EQ(grown.Length(), 64);
}

TEST(TWCString, AssignTakesExactlyTheCountZerosAmongThem) {
  TWCString text;
  text.Assign(L"a\0b", 3);
  EXPECT_EQ(text.Length(), 3);
  EXPECT_EQ(text[2], L'b');
  text.Assign(L"xyz", -1);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(TWCString, TruncateCutsAndNeverLengthens) {
  TWCString text(L"abcdef");
  text.Truncate(10);
  EXPECT_STREQ(text, L"abcdef");
  text.Truncate(2);
  EXPECT_STREQ(text, L"ab");
  text.Truncate(-3);
  EXPECT_STREQ(text, L"");
  text += L'z';
  EXPECT_STREQ(text, L"z");
}

TEST(TWCString, EqualityIsExactAndTheOtherOneFoldsCase) {
  const TWCString text(L"Screen");
  EXPECT_TRUE(text == L"Screen");
  EXPECT_FALSE(text == L"SCREEN");
  EXPECT_TRUE(text != L"Scree");
  EXPECT_TRUE(text == TWCString(L"Screen"));
  EXPECT_TRUE(text.EqualsNoCase(L"sCREEN"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREENs"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREE"));
  EXPECT_TRUE(TWCString().EqualsNoCase(nullptr));
}

TEST(NarrowText, GoesThroughTheAnsiCodePageAndBack) {
  const char narrow[] = "\xC7\xBD\xCC\xE5";  // 墙体 in code page 936
  EXPECT_STREQ(TUString(narrow), L"墙体");
  EXPECT_STREQ(TAString(L"墙体"), narrow);
  EXPECT_STREQ(TUString(nullptr), L"");
  EXPECT_EQ(TUString("abc", 2).Length(), 2);
}

TEST(TWCStringList, KeepsCopiesInOrder) {
  TWCStringList list;
  {
    TWCString text(L"一");
    list.Add(text);
    list.Add(L"二");
  }
  ASSERT_EQ(list.Length(), 2);
  EXPECT_STREQ(list[0], L"一");
  EXPECT_STREQ(list[1], L"二");
}

TEST(SplitPath, GivesTheFourPieces) {
  const TSplitpathOperator parts(L"C:\\菜单\\sub.dir\\qvx.old.qmn");
  EXPECT_STREQ(parts.Drive(), L"C:");
  EXPECT_STREQ(parts.Folder(), L"\\菜单\\sub.dir\\");
  EXPECT_STREQ(parts.Name(), L"qvx.old");
  EXPECT_STREQ(parts.Extension(), L".qmn");
  EXPECT_STREQ(parts.FileName(), L"qvx.old.qmn");
  EXPECT_STREQ(parts.Base(), L"C:\\菜单\\sub.dir\\qvx.old");
}

TEST(SplitPath, MissingPiecesAreEmpty) {
  const TSplitpathOperator bare(L"qvx");
  EXPECT_STREQ(bare.Drive(), L"");
  EXPECT_STREQ(bare.Folder(), L"");
  EXPECT_STREQ(bare.Name(), L"qvx");
  EXPECT_STREQ(bare.Extension(), L"");
  const TSplitpathOperator slashes(L"/home/a.b/qvx");
  EXPECT_STREQ(slashes.Folder(), L"/home/a.b/");
  EXPECT_STREQ(slashes.Base(), L"/home/a.b/qvx");
  EXPECT_STREQ(TSplitpathOperator(nullptr).FileName(), L"");
}
