// Lines, tips and the backward scan, on real files.
#include <gtest/gtest.h>

#include <random>

#include "dialogs/tip_file.h"
#include "tests/dialogs/tip_file_double.h"

namespace {

std::wstring Line(std::FILE* file) {
  CString line;
  return qvx::ReadTipLine(file, line) ? line.GetString() : L"(end)";
}

std::wstring Next(std::FILE* file) {
  CString tip;
  const qvx::TipFound found = qvx::ReadNextTip(file, tip);
  if (found == qvx::TipFound::kNoTip) return L"(none)" + std::wstring(tip.GetString());
  return found == qvx::TipFound::kYes ? tip.GetString() : L"(failed)";
}

int Before(std::FILE* file, int end) {
  int offset = -1;
  return qvx::FindTipBefore(file, end, offset) ? offset : -2;
}

}  // namespace

TEST(TipLine, KeepsItsLineEndAndReadsBothForms) {
  const TipFileOnDisk disk("one\ntwo\r\n\r\nlast");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()), L"one\n");
  EXPECT_EQ(Line(file.get()), L"two\n");
  EXPECT_EQ(Line(file.get()), L"\n");
  EXPECT_EQ(Line(file.get()), L"last");
  EXPECT_EQ(Line(file.get()), L"(end)");
}

TEST(TipLine, ABareCarriageReturnIsAnOrdinaryCharacter) {
  const TipFileOnDisk disk("one\rtwo\r");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()), L"one\rtwo\r");
}

TEST(TipLine, IsTextOfTheAnsiCodePage) {
  const TipFileOnDisk disk("\xC7\xBD\xCC\xE5\n\x81\nplain\n");  // line 2: half a character
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()), L"墙体\n");
  EXPECT_EQ(Line(file.get()), L"\xFFFD\n");
  EXPECT_EQ(Line(file.get()), L"plain\n");
}

TEST(TipLine, ATrailByteIsAtLeastHex40) {
  const TipFileOnDisk disk("\x81\x3F\n\x81\x40\n\xFE\x3F\n\xFE\x40\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()), L"\xFFFD?\n") << "the byte below is a character of its own";
  EXPECT_EQ(Line(file.get()), L"\x4E02\n");
  EXPECT_EQ(Line(file.get()), L"\xFFFD?\n");
  EXPECT_EQ(Line(file.get()).back(), L'\n') << "the second byte belongs to the first";
}

TEST(TipLine, EndsAtTheEndMarkOfTextFiles) {
  const TipFileOnDisk disk("one\n\x1Atwo\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()), L"one\n");
  EXPECT_EQ(Line(file.get()), L"(end)");
  EXPECT_EQ(Line(file.get()), L"(end)");
}

TEST(TipLine, HoldsOneCharacterLessThanTheBuffer) {
  for (const int length : {1997, 1998, 1999, 2000, 2001, 4500}) {
    const TipFileOnDisk disk(std::string(static_cast<std::size_t>(length), 'x') + "\nnext\n");
    const FileOwner file = disk.Open();
    int seen = 0;
    std::wstring line;
    while ((line = Line(file.get())) != L"next\n") {
      ASSERT_LE(line.size(), 1999u) << length;
      ASSERT_NE(line, L"(end)") << length;
      seen += static_cast<int>(line.size());
    }
    EXPECT_EQ(seen, length + 1) << length;
  }
}

TEST(TipLine, CountsCharactersAndNotBytes) {
  std::string bytes;
  for (int i = 0; i < 2000; ++i) bytes += "\xC7\xBD";
  const TipFileOnDisk disk(bytes + "\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Line(file.get()).size(), 1999u);
  EXPECT_EQ(Line(file.get()), L"墙\n");
}

TEST(Tip, IsALineThatBeginsWithNoneOfFourCharacters) {
  EXPECT_TRUE(qvx::IsTipLine(L"tip\n"));
  EXPECT_TRUE(qvx::IsTipLine(L"墙"));
  EXPECT_TRUE(qvx::IsTipLine(L"\rodd\n"));
  for (const wchar_t* skipped : {L"\ttip\n", L"\n", L" tip\n", L";tip\n"})
    EXPECT_FALSE(qvx::IsTipLine(skipped));
}

TEST(Tip, TheNextOneSkipsOtherLinesAndWrapsAround) {
  const TipFileOnDisk disk("; head\none\n; between\n\n\ttwo\n three\ntwo\n; tail\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Next(file.get()), L"one\n");
  EXPECT_EQ(Next(file.get()), L"two\n");
  EXPECT_EQ(Next(file.get()), L"one\n");
}

TEST(Tip, ALastLineWithoutLineEndIsATip) {
  const TipFileOnDisk disk("one\ntwo");
  const FileOwner file = disk.Open();
  Next(file.get());
  EXPECT_EQ(Next(file.get()), L"two");
  EXPECT_EQ(std::ftell(file.get()), 7);
  EXPECT_EQ(Before(file.get(), 7), 0);
  EXPECT_EQ(Next(file.get()), L"one\n");
}

TEST(Tip, TheRestOfALineTooLongIsATipOfItsOwn) {
  const TipFileOnDisk disk(std::string(1999, 'a') + "tail\n" + std::string(1999, 'b') +
                           ";no\nend\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Next(file.get()), std::wstring(1999, L'a'));
  EXPECT_EQ(Next(file.get()), L"tail\n");
  EXPECT_EQ(Next(file.get()), std::wstring(1999, L'b'));
  EXPECT_EQ(Next(file.get()), L"end\n");
  EXPECT_EQ(Before(file.get(), 1999 + 5), 0);
  EXPECT_EQ(Before(file.get(), 1999 + 5 + 1999), 1999);
}

TEST(Tip, WithoutAnyTheSearchEndsWithNoText) {
  for (const char* bytes : {"", "; only\n", "\n\n\n", "\t\n ;\n"}) {
    const TipFileOnDisk disk(bytes);
    const FileOwner file = disk.Open();
    EXPECT_EQ(Next(file.get()), L"(none)") << bytes;
  }
}

TEST(TipBefore, IsFoundByAScanFromTheStart) {
  const TipFileOnDisk disk("one\ntwo\nsix\n");  // four bytes each
  const FileOwner file = disk.Open();
  EXPECT_EQ(Before(file.get(), 12), 4);
  EXPECT_EQ(Before(file.get(), 8), 0);
  EXPECT_EQ(Before(file.get(), 4), 0) << "the first has none before it";
  EXPECT_EQ(Before(file.get(), 0), 0);
}

TEST(TipBefore, IsTheTipAboveAComment) {
  const TipFileOnDisk disk("one\ntwo\n;c1\n;c2\nsix\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Before(file.get(), 20), 4);
  EXPECT_EQ(Next(file.get()), L"one\n") << "the walk itself leaves the file at its start or behind";
}

TEST(TipBefore, BelowACommentAtTheTopTheSecondTipGoesBackToANonZeroOffset) {
  const TipFileOnDisk disk(";c1\none\ntwo\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Before(file.get(), 12), 4);
  EXPECT_EQ(Before(file.get(), 8), 0);
}

TEST(TipBefore, CountsWindowsLineEndsAsTwoBytes) {
  const TipFileOnDisk disk("one\r\ntwo\r\nsix\r\n");
  const FileOwner file = disk.Open();
  Next(file.get());
  EXPECT_EQ(std::ftell(file.get()), 5);
  Next(file.get());
  EXPECT_EQ(std::ftell(file.get()), 10);
  EXPECT_EQ(Before(file.get(), 15), 5);
}

TEST(TipBefore, AnEndAtWhichNoTipEndsGivesTheStart) {
  const TipFileOnDisk disk("one\n;comment\ntwo\n");
  const FileOwner file = disk.Open();
  for (const int end : {1, 3, 5, 13, 16, 18, 5000, -1})
    EXPECT_EQ(Before(file.get(), end), 0) << end;
}

TEST(TipBefore, TheEndOfACommentIsNotTheEndOfATip) {
  const TipFileOnDisk disk("one\ntwo\n;c\nsix\n");
  const FileOwner file = disk.Open();
  EXPECT_EQ(Before(file.get(), 11), 0);
  EXPECT_EQ(Before(file.get(), 15), 4);
}

TEST(TipWalk, EndsOnAnyBytes) {
  std::mt19937 random(81);
  for (int round = 0; round < 200; ++round) {
    std::string bytes(random() % 5000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 7 ? random() : '\n');
    const TipFileOnDisk disk(bytes);
    const FileOwner file = disk.Open();
    ASSERT_TRUE(qvx::SeekTip(file.get(), static_cast<int>(random() % 6000)));
    CString tip;
    for (int step = 0; step < 5; ++step) {
      ASSERT_NE(qvx::ReadNextTip(file.get(), tip), qvx::TipFound::kSeekFailed);
      ASSERT_LT(tip.GetLength(), 2 * qvx::kTipUnits);
      const int end = static_cast<int>(std::ftell(file.get()));
      const int before = Before(file.get(), end);
      ASSERT_GE(before, 0);
      ASSERT_LE(before, end);
    }
  }
}

TEST(TipStamp, IsTheTimeOfTheFileWithoutLineEnd) {
  const TipFileOnDisk disk("one\n");
  const FileOwner file = disk.Open();
  const CString stamp = qvx::TipFileStamp(file.get());
  ASSERT_EQ(stamp.GetLength(), 24) << "weekday, month, day, time, year";
  EXPECT_EQ(stamp[3], L' ');
  EXPECT_EQ(stamp[13], L':');
  EXPECT_NE(stamp[23], L'\n');
}
