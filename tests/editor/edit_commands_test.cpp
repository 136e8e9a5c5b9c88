// The menu commands of the in-place editor as changes of a text.
#include "editor/edit_commands.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace qvx;

struct Changed {
  int command;
  const wchar_t* text;
  int caret;
};

TEST(EditCommands, SequencesArePutAroundTheSelectionOrReplaceIt) {
  const Changed rows[] = {
      {5004, L"ab^Lcd^Lef", 8}, {5005, L"ab^Ucd^Uef", 8}, {5006, L"ab^Ccd^Cef", 8},
      {5024, L"ab^Xcd^Xef", 8}, {5007, L"ab%%def", 5},    {5008, L"ab%%pef", 5},
      {5009, L"ab%%cef", 5},    {5010, L"ab%%%ef", 5},    {5011, L"ab^1ef", 4},
      {5012, L"ab^2ef", 4},     {5013, L"ab^3ef", 4},     {5014, L"ab^4ef", 4}};
  for (const Changed& row : rows) {
    const auto change = ChangeByCommand(row.command, L"abcdef", {2, 4});
    ASSERT_TRUE(change) << row.command;
    EXPECT_EQ(change->text, row.text) << row.command;
    EXPECT_EQ(change->caret, row.caret) << row.command;
  }
}

TEST(EditCommands, AnEmptySelectionGetsBothSequencesOrOne) {
  EXPECT_EQ(ChangeByCommand(5004, L"ab", {2, 2})->text, L"ab^L^L");
  EXPECT_EQ(ChangeByCommand(5004, L"ab", {2, 2})->caret, 6);
  EXPECT_EQ(ChangeByCommand(5004, L"", {0, 0})->text, L"^L^L");
  EXPECT_EQ(ChangeByCommand(5007, L"", {0, 0})->text, L"%%d");
}

TEST(EditCommands, ASelectionBeyondTheTextIsCut) {
  EXPECT_EQ(ChangeByCommand(5004, L"ab", {1, 9})->text, L"a^Lb^L");
  EXPECT_EQ(ChangeByCommand(5007, L"ab", {-3, 1})->text, L"%%db");
  EXPECT_EQ(ChangeByCommand(5007, L"ab", {7, 9})->text, L"ab%%d");
  EXPECT_EQ(ChangeByCommand(5007, L"ab", {2, 1})->text, L"ab%%d");
}

TEST(EditCommands, LongTextsHaveNoLimitOfSixteenBits) {
  const std::wstring text(100000, L'x');
  const auto change = ChangeByCommand(5011, text, {70000, 70001});
  EXPECT_EQ(change->text.size(), 100001u);
  EXPECT_EQ(change->text.substr(70000, 2), L"^1");
  EXPECT_EQ(change->caret, 70002);
}

TEST(EditCommands, AChoiceReplacesTheSelection) {
  const TextChange change = ReplaceRange(L"abcdef", {2, 4}, L"12345");
  EXPECT_EQ(change.text, L"ab12345ef");
  EXPECT_EQ(change.caret, 7);
}

TEST(EditCommands, EveryCommandIsOfOneKindAndAllOthersAreOfNone) {
  const std::set<int> closing{5001, 5002, 5003, 5018, 5019, 5020, 5021, 5022, 5023};
  const std::set<int> others{5015, 5016, 5017};
  for (int command = 4990; command <= 6001; ++command) {
    const bool isClosing = closing.count(command) != 0;
    const bool isChange =
        command >= 5001 && command <= 5024 && !isClosing && !others.count(command);
    EXPECT_EQ(FindClosingCommand(command) != nullptr, isClosing) << command;
    EXPECT_EQ(ChangeByCommand(command, L"ab", {0, 1}).has_value(), isChange) << command;
  }
}

TEST(EditCommands, OnlyCommandsThatSendAHostCommandPickTheObject) {
  for (const int command : {5001, 5002, 5018, 5023}) {
    EXPECT_EQ(FindClosingCommand(command)->hostCommand, nullptr) << command;
    EXPECT_FALSE(FindClosingCommand(command)->picksObject) << command;
    EXPECT_FALSE(FindClosingCommand(command)->byFullName) << command;
  }
  for (const int command : {5003, 5019, 5020, 5021})
    EXPECT_TRUE(FindClosingCommand(command)->picksObject) << command;
  EXPECT_FALSE(FindClosingCommand(5022)->picksObject);
}

TEST(EditCommands, MenusAreNumberedFromOneToSeven) {
  EXPECT_EQ(MenuNameOf(1), L"INPLACE1");
  EXPECT_EQ(MenuNameOf(7), L"INPLACE7");
  for (const int type : {0, 8, -1, 100}) EXPECT_EQ(MenuNameOf(type), L"INPLACE") << type;
}

}  // namespace
