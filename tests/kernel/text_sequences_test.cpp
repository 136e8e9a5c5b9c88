// Sequences in texts, and line breaks.
#include "kernel/text_sequences.h"

#include <gtest/gtest.h>

#include "kernel/text_lines.h"

namespace {

using Runs = std::vector<TextRun>;
constexpr TextStyle kPlain = TextStyle::Plain;

TEST(TextSequences, EachSequenceIsARunOfItsStyle) {
  EXPECT_EQ((Runs{{kPlain, L"m"}, {TextStyle::Superscript, L"2"}}), ParseTextSequences(L"m^U2^U"));
  EXPECT_EQ((Runs{{kPlain, L"H"}, {TextStyle::Subscript, L"2"}, {kPlain, L"O"}}),
            ParseTextSequences(L"H^L2^LO"));
  EXPECT_EQ((Runs{{TextStyle::Circled, L"12"}}), ParseTextSequences(L"^C12^C"));
  EXPECT_EQ((Runs{{kPlain, L"A"}, {TextStyle::Corner, L"甲"}}), ParseTextSequences(L"A^X甲^X"));
}

TEST(TextSequences, SteelGradesAreSignsOfTheirOwn) {
  EXPECT_EQ(
      (Runs{{kPlain, L"4"}, {TextStyle::Steel, L"1"}, {kPlain, L"12"}, {TextStyle::Steel, L"4"}}),
      ParseTextSequences(L"4^112^4"));
  EXPECT_EQ((Runs{{kPlain, L"^5^0"}}), ParseTextSequences(L"^5^0"));
}

TEST(TextSequences, PercentCodesAreSignsInEitherCase) {
  EXPECT_EQ((Runs{{kPlain, L"90°±Φ%"}}), ParseTextSequences(L"90%%d%%p%%c%%%"));
  EXPECT_EQ((Runs{{kPlain, L"°±Φ"}}), ParseTextSequences(L"%%D%%P%%C"));
  EXPECT_EQ((Runs{{kPlain, L"5%%x 5%"}}), ParseTextSequences(L"5%%x 5%"));
  EXPECT_EQ((Runs{{TextStyle::Superscript, L"±0"}}), ParseTextSequences(L"^U%%p0^U"));
}

TEST(TextSequences, WhatIsNotClosedIsShownAsItIs) {
  EXPECT_EQ((Runs{{kPlain, L"m^U2"}}), ParseTextSequences(L"m^U2"));
  EXPECT_EQ((Runs{{kPlain, L"^"}}), ParseTextSequences(L"^"));
  EXPECT_EQ((Runs{{kPlain, L"^u2^u"}}), ParseTextSequences(L"^u2^u"));
  EXPECT_EQ((Runs{{TextStyle::Superscript, L"^L2"}, {kPlain, L"^L"}}),
            ParseTextSequences(L"^U^L2^U^L"))
      << "they do not nest";
}

TEST(TextSequences, AnEmptySequenceShowsNothing) {
  EXPECT_TRUE(ParseTextSequences(L"^U^U").empty());
  EXPECT_EQ((Runs{{kPlain, L"ab"}}), ParseTextSequences(L"a^C^Cb"));
  EXPECT_TRUE(ParseTextSequences(L"").empty());
}

TEST(TextSequences, ScriptsAreSmallerAndShifted) {
  const TextLayout above = LayOutText(L"m^U2^U", 100), below = LayOutText(L"m^L2^L", 100);
  ASSERT_EQ(2u, above.pieces.size());
  EXPECT_DOUBLE_EQ(60, above.pieces[1].x);
  EXPECT_DOUBLE_EQ(60, above.pieces[1].size);
  EXPECT_GT(above.pieces[1].y, 0);
  EXPECT_LT(below.pieces[1].y, 0);
  EXPECT_DOUBLE_EQ(96, above.width);
  const TextPiece corner = LayOutText(L"^X2^X", 100).pieces[0];
  EXPECT_DOUBLE_EQ(100, corner.y + corner.size) << "flush with the top";
}

TEST(TextSequences, ACircleIsAsWideAsItsText) {
  const TextLayout one = LayOutText(L"^C1^C", 100), more = LayOutText(L"^C1234567^C", 100);
  ASSERT_EQ(2u, one.pieces.size());
  EXPECT_EQ(TextPiece::Kind::Ring, one.pieces[0].kind);
  EXPECT_DOUBLE_EQ(120, one.width);
  EXPECT_GT(more.width, one.width);
  const TextPiece &ring = more.pieces[0], &text = more.pieces[1];
  EXPECT_GT(text.x, ring.x - ring.size);
  EXPECT_LT(text.x + 7 * 0.6 * text.size, ring.x + ring.size);
}

TEST(TextSequences, SteelGradesDifferInTheirBars) {
  for (int grade = 1; grade <= 4; ++grade)
    EXPECT_EQ(1u + grade, LayOutText(L"^" + std::to_wstring(grade), 100).pieces.size())
        << "ring, stroke, bars";
}

TEST(TextSequences, LongLinesBreakWithoutCuttingASequence) {
  using Lines = std::vector<std::wstring>;
  EXPECT_EQ((Lines{L"一二", L"三四", L"五"}), WrapTextLine(L"一二三四五", 2));
  EXPECT_EQ((Lines{L"one", L"two"}), WrapTextLine(L"one two", 3));
  EXPECT_EQ((Lines{L"一^U23^U", L"二"}), WrapTextLine(L"一^U23^U二", 2));
  EXPECT_EQ((Lines{L"一"}), WrapTextLine(L"一", 0.1)) << "one character stays";
  EXPECT_EQ((Lines{L"一二三"}), WrapTextLine(L"一二三", 0)) << "no width";
  EXPECT_EQ((Lines{L""}), WrapTextLine(L"", 5));
}

TEST(TextLines, AnyBreakIsStoredAsOne) {
  EXPECT_EQ(L"a\nb\nc\nd", TextToStore(L"a\r\nb\rc\nd", true));
  EXPECT_EQ(L"a b c", TextToStore(L"a\r\nb\nc", false));
  EXPECT_EQ(L"a\n\nb", TextToStore(L"a\r\n\r\nb", true));
  EXPECT_EQ(L"a\r\nb", TextToEdit(L"a\nb"));
}

TEST(TextLines, ATextInAFileIsOneLineAndIsReadBack) {
  for (const wchar_t* text : {L"a\nb", L"C:\\Plans", L"\\", L"a\\\nb", L"\n\n", L"%%p0.000", L""}) {
    const std::wstring written = TextToFile(text);
    EXPECT_EQ(written.npos, written.find(L'\n'));
    EXPECT_EQ(text, TextFromFile(written));
  }
  EXPECT_EQ(L"x\\q", TextFromFile(L"x\\q")) << "of another program";
}

}  // namespace
