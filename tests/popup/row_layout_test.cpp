// The computed look of a row: places, colours and what a state omits.
#include "popup/row_layout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr RECT kRow = {10, 100, 210, 120};  // 20 high

void ExpectRect(const RECT& r, LONG left, LONG top, LONG right, LONG bottom) {
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}

TEST(PopupRowLook, ANormalRowIsFilledWholeAndHasItsImageAtTwoTwo) {
  const PopupRowLook look = LookOfPopupRow(kRow, {}, false);
  EXPECT_TRUE(look.fillsRow);
  ExpectRect(look.imageBox, 10, 100, 30, 120);
  ExpectRect(look.innerBox, 11, 101, 29, 119);
  EXPECT_TRUE(look.clearsInner);
  EXPECT_TRUE(look.framesImageBox);
  EXPECT_FALSE(look.raisesImageBox);
  EXPECT_EQ(look.imageKind, RowImageKind::kIcon);
  EXPECT_EQ(look.image.x, 12);
  EXPECT_EQ(look.image.y, 102);
  ExpectRect(look.text, 35, 99, 210, 119);
  EXPECT_FALSE(look.hasShadow);
  EXPECT_EQ(look.textColor, PopupColor::kMenuText);
}

TEST(PopupRowLook, ASelectedRowHasABandUnderTheTextAndARaisedBox) {
  const PopupRowLook look = LookOfPopupRow(kRow, {true, false, false}, false);
  EXPECT_FALSE(look.fillsRow);
  ExpectRect(look.band, 31, 100, 210, 120);
  EXPECT_TRUE(look.raisesImageBox);
  EXPECT_FALSE(look.framesImageBox);
  EXPECT_EQ(look.image.x, 13);
  EXPECT_EQ(look.image.y, 101);
  EXPECT_EQ(look.textColor, PopupColor::kHighlightText);
}

TEST(PopupRowLook, AGreyRowShowsNoImageAndALightCopyOfItsText) {
  const PopupRowLook look = LookOfPopupRow(kRow, {false, true, false}, false);
  EXPECT_EQ(look.imageKind, RowImageKind::kNone);
  EXPECT_FALSE(look.clearsInner);
  EXPECT_FALSE(look.framesImageBox);
  EXPECT_TRUE(look.hasShadow);
  ExpectRect(look.shadow, 36, 100, 211, 120);
  EXPECT_EQ(look.textColor, PopupColor::kGrayText);
}

TEST(PopupRowLook, AGreyAndSelectedRowHasMenuColouredTextOnTheBandAndNoCopy) {
  const PopupRowLook look = LookOfPopupRow(kRow, {true, true, false}, false);
  EXPECT_FALSE(look.fillsRow);
  EXPECT_FALSE(look.raisesImageBox);
  EXPECT_FALSE(look.hasShadow);
  EXPECT_EQ(look.textColor, PopupColor::kMenu);
  EXPECT_EQ(look.imageKind, RowImageKind::kNone);
}

TEST(PopupRowLook, ACheckMarkReplacesTheIconAndAGreyRowShowsNeither) {
  EXPECT_EQ(LookOfPopupRow(kRow, {false, false, true}, false).imageKind, RowImageKind::kCheckMark);
  EXPECT_EQ(LookOfPopupRow(kRow, {true, false, true}, false).imageKind, RowImageKind::kCheckMark);
  EXPECT_EQ(LookOfPopupRow(kRow, {false, true, true}, false).imageKind, RowImageKind::kNone);
  EXPECT_EQ(LookOfPopupRow(kRow, {true, true, true}, false).imageKind, RowImageKind::kNone);
}

// Deliberate: the image keeps its distance from the row's top, so users see it
// above the middle of the box.
TEST(PopupRowLook, AHigherRowCentresTheBoxButNotTheImage) {
  const PopupRowLook look = LookOfPopupRow({0, 0, 100, 31}, {true, false, false}, false);
  ExpectRect(look.imageBox, 0, 5, 20, 25);
  ExpectRect(look.innerBox, 1, 6, 19, 24);
  EXPECT_EQ(look.image.y, 1);
  ExpectRect(look.band, 21, 0, 100, 31);
}

TEST(PopupRowLook, ALowerRowHasTheBoxAtItsTop) {
  ExpectRect(LookOfPopupRow({0, 50, 100, 65}, {}, false).imageBox, 0, 50, 20, 70);
}

TEST(PopupRowLook, ATabEndsTheTextSixteenPixelsFromTheRight) {
  ExpectRect(LookOfPopupRow(kRow, {}, true).text, 35, 99, 194, 119);
  ExpectRect(LookOfPopupRow(kRow, {false, true, false}, true).shadow, 36, 100, 195, 120);
}

TEST(RowLabel, IsSplitAtItsTabs) {
  const RowLabel plain = SplitLabel(L"打开(&O)");
  EXPECT_EQ(plain.left, L"打开(&O)");
  EXPECT_FALSE(plain.hasTab);
  const RowLabel one = SplitLabel(L"打开\tCtrl+O");
  EXPECT_EQ(one.left, L"打开");
  EXPECT_EQ(one.right, L"Ctrl+O");
  const RowLabel two = SplitLabel(L"a\tdropped\tb");
  EXPECT_EQ(two.left, L"a");
  EXPECT_EQ(two.right, L"b");
  const RowLabel three = SplitLabel(L"\t\tb\t");
  EXPECT_EQ(three.left, L"");
  EXPECT_EQ(three.right, L"");
  EXPECT_TRUE(three.hasTab);
  EXPECT_FALSE(SplitLabel(L"").hasTab);
}

TEST(PopupRowSize, IsTheTextPlusSixteenAndAtLeastTwenty) {
  EXPECT_EQ(MeasurePopupRow(100, 18).cx, 116);
  EXPECT_EQ(MeasurePopupRow(100, 18).cy, 20);
  EXPECT_EQ(MeasurePopupRow(0, 27).cy, 27);
}

class Labels : public MenuCharRows {
 public:
  explicit Labels(std::vector<const wchar_t*> labels) : m_labels(std::move(labels)) {}
  int Count() const override { return static_cast<int>(m_labels.size()); }
  std::wstring Label(int row) const override { return m_labels[static_cast<size_t>(row)]; }
  int Position(int row) const override { return row * 2; }  // separators in between

 private:
  std::vector<const wchar_t*> m_labels;
};

TEST(MenuChar, SelectsTheFirstRowWithThatLetterInAnyCase) {
  const Labels rows({L"放大(&I)", L"缩小(&o)", L"另存(&O)", L"No mnemonic O"});
  EXPECT_EQ(PickMenuChar(L'o', 0x10, rows), 2u | 2u << 16);
  EXPECT_EQ(PickMenuChar(L'O', 0x10, rows), 2u | 2u << 16);
  EXPECT_EQ(PickMenuChar(L'i', 0x10, rows), 0u | 2u << 16);
}

TEST(MenuChar, OtherLettersAndMenusAreLeftToTheSystem) {
  const Labels rows({L"放大(&I)", L"Open"});
  EXPECT_EQ(PickMenuChar(L'p', 0x10, rows), 0u) << "no ampersand";
  EXPECT_EQ(PickMenuChar(L'i', 0, rows), 0u) << "not in a pop-up";
  EXPECT_EQ(PickMenuChar(L'i', 0x10, Labels({})), 0u);
}

}  // namespace
