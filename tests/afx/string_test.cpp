// CString and CStringA as values: construction, searching, extracting, trimming, tokens, buffers.
#include <gtest/gtest.h>

#include "afx.h"

namespace {

TEST(CStringValue, NullTextIsEmpty) {
  const CString empty(static_cast<const wchar_t*>(nullptr));
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_STREQ(empty, L"");
}

TEST(CStringValue, NarrowTextIsReadInTheAnsiCodePage) {
  EXPECT_STREQ(AnsiToWide("\xC7\xBD\xCC\xE5", 936).c_str(), L"墙体");
  EXPECT_STREQ(CString("wall"), L"wall");
  EXPECT_STREQ(CStringA(L"wall"), "wall");
}

TEST(CStringValue, ACopyIsIndependent) {
  CString a = L"one";
  CString b = a;
  b.SetAt(0, L'O');
  EXPECT_STREQ(a, L"one");
  EXPECT_STREQ(b, L"One");
}

TEST(CStringValue, OperatorsJoinTextAndCharacters) {
  CString text = CString(L"a") + L"b" + L'c';
  text += CString(L"d");
  text = L"<" + text + L'>';
  EXPECT_STREQ(text, L"<abcd>");
  EXPECT_STREQ(L'[' + text, L"[<abcd>");
}

TEST(CStringValue, ComparisonTakesTextOnEitherSide) {
  const CString text = L"b";
  EXPECT_TRUE(text == L"b");
  EXPECT_TRUE(L"b" == text);
  EXPECT_TRUE(text != L"B");
  EXPECT_TRUE(text < L"c");
  EXPECT_TRUE(CString(L"a") < text);
  EXPECT_EQ(text.CompareNoCase(L"B"), 0);
  EXPECT_EQ(text.CompareNoCase(L"BA"), -1);
  EXPECT_EQ(text.Compare(L"a"), 1);
}

TEST(CStringValue, FindReturnsMinusOneWhenNothingIsFound) {
  const CString text = L"abcabc";
  EXPECT_EQ(text.Find(L'c'), 2);
  EXPECT_EQ(text.Find(L'c', 3), 5);
  EXPECT_EQ(text.Find(L"ca"), 2);
  EXPECT_EQ(text.Find(L"x"), -1);
  EXPECT_EQ(text.Find(L'a', 6), -1);
  EXPECT_EQ(text.Find(L'a', -1), -1);
  EXPECT_EQ(text.ReverseFind(L'a'), 3);
  EXPECT_EQ(text.ReverseFind(L'x'), -1);
  EXPECT_EQ(text.FindOneOf(L"xc"), 2);
}

TEST(CStringValue, ExtractingStaysInsideTheText) {
  const CString text = L"abc";
  EXPECT_STREQ(text.Left(9), L"abc");
  EXPECT_STREQ(text.Left(-1), L"");
  EXPECT_STREQ(text.Right(2), L"bc");
  EXPECT_STREQ(text.Right(9), L"abc");
  EXPECT_STREQ(text.Mid(1), L"bc");
  EXPECT_STREQ(text.Mid(1, 1), L"b");
  EXPECT_STREQ(text.Mid(7, 2), L"");
  EXPECT_STREQ(text.Mid(-2, 2), L"ab");
  EXPECT_STREQ(CString(L"aab1").SpanIncluding(L"ab"), L"aab");
  EXPECT_STREQ(CString(L"aab1").SpanExcluding(L"1"), L"aab");
}

TEST(CStringValue, AnIndexOutsideTheTextThrows) {
  CString text = L"ab";
  EXPECT_EQ(text[2], L'\0');
  EXPECT_THROW(text.GetAt(3), CInvalidArgException*);
  EXPECT_THROW(text.SetAt(2, L'x'), CInvalidArgException*);
  EXPECT_THROW((void)text[-1], CInvalidArgException*);
}

TEST(CStringValue, TrimRemovesBlanksOrGivenCharacters) {
  EXPECT_STREQ(CString(L" \t a b \r\n").Trim(), L"a b");
  EXPECT_STREQ(CString(L"\x3000墙\x3000").Trim(), L"墙");
  EXPECT_STREQ(CString(L"xxaxx").Trim(L'x'), L"a");
  EXPECT_STREQ(CString(L"xyaxy").TrimLeft(L"yx"), L"axy");
  EXPECT_STREQ(CString(L"xyaxy").TrimRight(L"yx"), L"xya");
  EXPECT_STREQ(CString(L"   ").Trim(), L"");
}

TEST(CStringValue, CaseChangesForLettersOnly) {
  EXPECT_STREQ(CString(L"aé墙-z9").MakeUpper(), L"AÉ墙-Z9");
  EXPECT_STREQ(CString(L"AÉ墙-Z9").MakeLower(), L"aé墙-z9");
}

// The trail byte of a two-byte character may look like a letter.
TEST(CStringValue, NarrowCaseDoesNotChangeTwoByteCharacters) {
  EXPECT_STREQ(CStringA("\x81\x61z").MakeUpper(), "\x81\x61Z");
}

TEST(CStringValue, ReplaceReturnsTheNumberOfPlaces) {
  CString text = L"a.b.c";
  EXPECT_EQ(text.Replace(L".", L"::"), 2);
  EXPECT_STREQ(text, L"a::b::c");
  EXPECT_EQ(text.Replace(L':', L'-'), 4);
  EXPECT_EQ(text.Replace(L"", L"x"), 0);
  EXPECT_EQ(text.Remove(L'-'), 4);
  EXPECT_STREQ(text, L"abc");
}

TEST(CStringValue, InsertAndDeleteStayInside) {
  CString text = L"ad";
  EXPECT_EQ(text.Insert(1, L"bc"), 4);
  EXPECT_EQ(text.Insert(99, L'e'), 5);
  EXPECT_STREQ(text, L"abcde");
  EXPECT_EQ(text.Delete(1, 2), 3);
  EXPECT_EQ(text.Delete(2, 99), 2);
  EXPECT_EQ(text.Delete(5), 2);
  EXPECT_STREQ(text, L"ad");
}

TEST(CStringValue, TokenizeSkipsRunsOfSeparators) {
  const CString text = L";;a; b;";
  int at = 0;
  EXPECT_STREQ(text.Tokenize(L"; ", at), L"a");
  EXPECT_STREQ(text.Tokenize(L"; ", at), L"b");
  EXPECT_STREQ(text.Tokenize(L"; ", at), L"");
  EXPECT_EQ(at, -1);
  EXPECT_THROW(text.Tokenize(L";", at), CInvalidArgException*);
}

TEST(CStringValue, ABufferIsMeasuredOnRelease) {
  CString text;
  wchar_t* buffer = text.GetBuffer(20);
  std::wmemcpy(buffer, L"three", 6);
  text.ReleaseBuffer();
  EXPECT_EQ(text.GetLength(), 5);
  text.GetBufferSetLength(3);
  text.ReleaseBuffer(2);
  EXPECT_STREQ(text, L"th");
  text.Truncate(9);
  EXPECT_STREQ(text, L"th");
}

TEST(CStringValue, TextMayContainATerminator) {
  const CString text(L"a\0b", 3);
  EXPECT_EQ(text.GetLength(), 3);
  EXPECT_EQ(text[2], L'b');
}

}  // namespace
