#include "kernel/twcstring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "kernel/tsplitpath.h"

namespace {

std::wstring TextOf(const TWCString& text) {
  return {static_cast<const wchar_t*>(text), static_cast<size_t>(text.Length())};
}

// A text of different units, so that a shifted or incomplete copy is detected.
std::wstring Numbered(int length) {
  std::wstring text;
  for (int i = 0; i < length; ++i) text += static_cast<wchar_t>(0x4E00 + i % 5000);
  return text;
}

void Assign(TWCString& out, const std::wstring& text) {
  out.Assign(text.data(), static_cast<int>(text.size()));
}

TEST(TWCString, AnEmptyStringReadsAsEmptyText) {
  const TWCString plain, hinted(256), fromNull(static_cast<const wchar_t*>(nullptr));
  for (const TWCString* text : {&plain, &hinted, &fromNull}) {
    EXPECT_STREQ(*text, L"");
    EXPECT_EQ(text->Length(), 0);
    EXPECT_TRUE(text->IsEmpty());
    EXPECT_EQ((*text)[0], 0);
  }
}

TEST(TWCString, ACapacityIsAHintThatChangesNothingElse) {
  for (int capacity : {-1, 0, 1, 256}) {
    TWCString text(capacity);
    EXPECT_TRUE(text.IsEmpty());
    Assign(text, Numbered(300));
    EXPECT_EQ(TextOf(text), Numbered(300));
  }
}

TEST(TWCString, ACopyIsIndependentOfItsSource) {
  for (int length : {0, 1, 4, 100, 240, 241, 5000}) {
    TWCString source;
    Assign(source, Numbered(length));
    TWCString made(source), assigned(L"something else");
    assigned = source;
    source = L"changed";
    source += L" twice";
    EXPECT_EQ(TextOf(made), Numbered(length));
    EXPECT_EQ(TextOf(assigned), Numbered(length));
    made += L"!";
    EXPECT_EQ(TextOf(assigned), Numbered(length));
  }
}

TEST(TWCString, AMoveTakesTheText) {
  TWCString source(L"绘制墙体"), assigned(L"old");
  TWCString made(std::move(source));
  EXPECT_STREQ(made, L"绘制墙体");
  EXPECT_EQ(made.Length(), 4);
  assigned = std::move(made);
  EXPECT_STREQ(assigned, L"绘制墙体");
  made = L"in use again";
  EXPECT_STREQ(made, L"in use again");
  EXPECT_STREQ(assigned, L"绘制墙体");
}

TEST(TWCString, AssignTakesTheCountWithZerosIncluded) {
  TWCString text;
  text.Assign(L"a\0b", 3);
  EXPECT_EQ(TextOf(text), std::wstring(L"a\0b", 3));
  EXPECT_EQ(text[2], L'b');
  EXPECT_EQ(text[3], 0);
  const TWCString copy(text);
  EXPECT_EQ(TextOf(copy), std::wstring(L"a\0b", 3));
  EXPECT_FALSE(copy == L"a");
  EXPECT_TRUE(copy == text);
}

TEST(TWCString, NothingToAssignLeavesTheEmptyText) {
  TWCString text(L"abc");
  text.Assign(L"xyz", -1);
  EXPECT_STREQ(text, L"");
  text = L"abc";
  text.Assign(nullptr, 3);
  EXPECT_STREQ(text, L"");
  text = L"abc";
  text = static_cast<const wchar_t*>(nullptr);
  EXPECT_STREQ(text, L"");
  text = L"abc";
  text.Empty();
  EXPECT_STREQ(text, L"");
  EXPECT_TRUE(text.IsEmpty());
}

TEST(TWCString, NothingToAppendLeavesTheText) {
  TWCString text(L"abc");
  text.Append(L"x", 0);
  text.Append(L"x", -1);
  text.Append(nullptr, 2);
  text += static_cast<const wchar_t*>(nullptr);
  EXPECT_STREQ(text, L"abc");
}

TEST(TWCString, AssigningAStringToItselfKeepsIt) {
  for (int length : {0, 3, 240, 5000}) {
    TWCString text;
    Assign(text, Numbered(length));
    const TWCString& same = text;
    text = same;
    EXPECT_EQ(TextOf(text), Numbered(length));
  }
}

TEST(TWCString, ThePartOfAStringCanBeAssignedToIt) {
  for (int length : {10, 240, 5000})
    for (int from : {0, 1, length / 2, length - 1, length})
      for (int count : {0, 1, length - from}) {
        if (from + count > length) continue;
        TWCString text;
        Assign(text, Numbered(length));
        text.Assign(text + from, count);
        EXPECT_EQ(TextOf(text),
                  Numbered(length).substr(static_cast<size_t>(from), static_cast<size_t>(count)));
      }
}

TEST(TWCString, AStringCanBeAppendedToItself) {
  for (int length : {1, 100, 240, 5000}) {
    TWCString text;
    Assign(text, Numbered(length));
    text += text;
    EXPECT_EQ(TextOf(text), Numbered(length) + Numbered(length));
    text.Append(text + length, 1);
    EXPECT_EQ(text.Length(), 2 * length + 1);
    EXPECT_EQ(text[2 * length], Numbered(1)[0]);
  }
}

TEST(TWCString, GrowsUnitByUnit) {
  TWCString text;
  std::wstring expected;
  for (int i = 0; i < 3000; ++i) {
    const wchar_t unit = static_cast<wchar_t>(L'a' + i % 26);
    text.Append(&unit, 1);
    expected += unit;
    ASSERT_EQ(text.Length(), i + 1);
    ASSERT_EQ(text[i + 1], 0);
  }
  EXPECT_EQ(TextOf(text), expected);
}

TEST(TWCString, EveryLengthIsCopiedWhole) {
  for (int length = 0; length <= 300; ++length) {
    const std::wstring expected = Numbered(length);
    TWCString text;
    Assign(text, expected);
    ASSERT_EQ(TextOf(text), expected);
    ASSERT_EQ(text[length], 0);
  }
}

TEST(TWCString, EqualityIsExactAndTheOtherComparisonFoldsCase) {
  const TWCString text(L"Screen");
  EXPECT_TRUE(text == L"Screen");
  EXPECT_FALSE(text == L"SCREEN");
  EXPECT_TRUE(text != L"Scree");
  EXPECT_TRUE(text != L"Screens");
  EXPECT_TRUE(text == TWCString(L"Screen"));
  EXPECT_TRUE(text != TWCString(L"screen"));
  EXPECT_TRUE(TWCString() == L"");
  EXPECT_TRUE(TWCString() == TWCString(256));
  EXPECT_TRUE(TWCString() == static_cast<const wchar_t*>(nullptr));
  EXPECT_TRUE(text.EqualsNoCase(L"sCREEN"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREENs"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREE"));
  EXPECT_TRUE(TWCString().EqualsNoCase(nullptr));
}

TEST(TWCString, ALengthThatNoMemoryHoldsIsRefused) {
  TWCString text(L"abc");
  EXPECT_THROW(text.Append(L"x", 0x7FFFFFF0), std::bad_alloc);
  EXPECT_THROW(text.Assign(L"x", 0x7FFFFFF0), std::bad_alloc);
  EXPECT_STREQ(text, L"abc");
}

// One operation on both; the lengths are below and above the limit for pooled texts.
void ChangeAlike(std::mt19937& random, TWCString& text, std::wstring& expected) {
  const std::wstring part = Numbered(static_cast<int>(random() % (random() % 8 ? 40 : 700)));
  const auto from = expected.empty() ? 0 : random() % expected.size();
  switch (random() % 7) {
    case 0:
    case 1:
      Assign(text, part);
      expected = part;
      break;
    case 2:
      text.Append(part.data(), static_cast<int>(part.size()));
      expected += part;
      break;
    case 3:
      text = text + static_cast<int>(from);
      expected = expected.substr(from);
      break;
    case 4:
      text.Append(text + static_cast<int>(from), 1);
      expected += expected.c_str()[from];
      break;
    case 5:
      text = TWCString(part.c_str());
      expected = part;
      break;
    default:
      text.Empty();
      expected.clear();
  }
}

TEST(TWCString, ManyStringsInAnyOrderKeepTheirTexts) {
  std::mt19937 random(11);
  std::vector<TWCString> texts(4000);
  std::vector<std::wstring> expected(texts.size());
  for (int i = 0; i < 60000; ++i) {
    const size_t at = random() % texts.size();
    // Not zero, which would end the text for a later assignment of a part.
    if (expected[at].find(L'\0') != std::wstring::npos) {
      texts[at].Empty();
      expected[at].clear();
    }
    ChangeAlike(random, texts[at], expected[at]);
    ASSERT_EQ(TextOf(texts[at]), expected[at]) << i;
  }
  for (size_t i = 0; i < texts.size(); ++i) ASSERT_EQ(TextOf(texts[i]), expected[i]) << i;
  std::shuffle(texts.begin(), texts.end(), random);
  texts.resize(texts.size() / 2);
  TWCString last(L"the pool goes on");
  EXPECT_STREQ(last, L"the pool goes on");
}

TEST(NarrowText, ConvertsToTheAnsiCodePageAndBack) {
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

}  // namespace
