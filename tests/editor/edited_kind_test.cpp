// What a screen reader calls the text in the box.
#include "editor/edited_kind.h"

#include <gtest/gtest.h>

TEST(EditedKind, ATextIsCalledByTheKindOfItsObject) {
  EXPECT_EQ(qvx::KindOfText(L"QVX_SPACE"), L"房间文字");
  EXPECT_EQ(qvx::KindOfText(L"QVX_SHEET"), L"表格单元格文字");
  EXPECT_EQ(qvx::KindOfText(L"TEXT"), L"单行文字");
}

TEST(EditedKind, TheCaseOfTheTypeNameIsIgnored) {
  EXPECT_EQ(qvx::KindOfText(L"Qvx_Axis_Label"), L"轴号");
}

TEST(EditedKind, AnUnknownTypeIsPartOfTheNameAndPrefixesAreNotTheType) {
  EXPECT_EQ(qvx::KindOfText(L"QVX_OTHER"), L"QVX_OTHER 文字");
  EXPECT_EQ(qvx::KindOfText(L"QVX_SPACES"), L"QVX_SPACES 文字");
  EXPECT_EQ(qvx::KindOfText(L"QVX_SPAC"), L"QVX_SPAC 文字");
}

TEST(EditedKind, WithoutATypeItIsText) { EXPECT_EQ(qvx::KindOfText(L""), L"文字"); }
