#include "frame/settings/comma_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
std::vector<std::wstring> Split(const wchar_t* text) {
  TWCStringList pieces;
  SplitCommaList(text, pieces);
  std::vector<std::wstring> out;
  for (int i = 0; i < pieces.Length(); ++i) out.emplace_back(pieces[i]);
  return out;
}
using List = std::vector<std::wstring>;
}  // namespace

TEST(CommaList, ReturnsThePiecesInTextOrder) {
  EXPECT_EQ(Split(L"墙,门\n,窗 ,"), (List{L"墙", L"门\n", L"窗 "}));
}

TEST(CommaList, ATextThatDoesNotEndInACommaLosesItsLastPiece) {
  EXPECT_EQ(Split(L"a,b,c"), (List{L"a", L"b"}));
  EXPECT_EQ(Split(L"a"), List{});
}

TEST(CommaList, AnEmptyTextHasNoPiecesAndEmptyPiecesAreKept) {
  EXPECT_EQ(Split(L""), List{});
  EXPECT_EQ(Split(L",,"), (List{L"", L""}));
}

TEST(CommaList, AppendedPiecesAreReadBack) {
  TWCString text;
  AppendToCommaList(text, L"TWall\n");
  AppendToCommaList(text, L"TDoor ");
  EXPECT_STREQ(text, L"TWall\n,TDoor ,");
  EXPECT_EQ(Split(text), (List{L"TWall\n", L"TDoor "}));
}
