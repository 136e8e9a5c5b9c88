// The menu model: defaults, copies, lookups, ownership of sub-menus, and the recent list.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <type_traits>

#include "menu/fold_case.h"
#include "menu/name_pool.h"
#include "tests/menu/menu_testing.h"

namespace {

TMenuItem* Line(TMenuBar& bar, const wchar_t* label, const wchar_t* command) {
  auto* item = new TMenuItem(label, command);
  bar.Append(item);
  return item;
}

TMenuBar* SubMenu(TMenuItem& item) { return item.m_pSubMenu = new TMenuBar; }

TEST(MenuModel, ALineStartsEmptyWithoutIconAndSwitch) {
  TMenuItem item;
  EXPECT_TRUE(item.m_strLabel.IsEmpty());
  EXPECT_TRUE(item.m_strCommand.IsEmpty());
  EXPECT_EQ(item.m_pSubMenu, nullptr);
  EXPECT_EQ(item.m_pSwitch, nullptr);
  EXPECT_EQ(item.m_nCommandId, 0);
  EXPECT_EQ(item.m_nFlags, 0u);
  EXPECT_EQ(item.m_nIconIndex, -1);
}

TEST(MenuModel, TheOtherDefaultsAreThoseThatTheFileReaderNeeds) {
  TSwitchStateItem state;
  EXPECT_EQ(state.m_nIconIndex, -1);
  TMenuBar bar;
  EXPECT_EQ(bar.m_bOwned, 1);
  EXPECT_TRUE(bar.OwnsElements());
  TMenuSystem system;
  EXPECT_EQ(system.m_nReserved1, 0u);
  EXPECT_EQ(system.m_nReserved2, 0u);
  EXPECT_EQ(system.m_recent.m_nMaxDepth, 10);
  EXPECT_EQ(system.m_recent.m_bOwned, 0);
  EXPECT_TRUE(system.m_recent.OwnsElements());
}

TEST(MenuModel, RuntimeClassesAreThoseOfTheModel) {
  TMenuStack stack;
  EXPECT_EQ(stack.GetRuntimeClass(), RUNTIME_CLASS(TMenuBar));
  TMenuItem item;
  EXPECT_STREQ(item.GetRuntimeClass()->m_lpszClassName, "TMenuItem");
  EXPECT_TRUE((std::is_base_of_v<CObject, TMenuSystem>));
}

TEST(MenuModel, ALineIsMadeFromLabelCommandAndIconName) {
  TMenuItem item(L"墙", L"TWall\n", L"WALL");
  EXPECT_TRUE(item.m_strLabel == L"墙");
  EXPECT_TRUE(item.m_strCommand == L"TWall\n");
  EXPECT_TRUE(item.m_strIconName == L"WALL");
}

TEST(MenuModel, ACopySharesTheSwitchAndHasNoSubMenu) {
  TMenuSwitchItem owner;
  TMenuItem item(L"a", L"b", L"c");
  item.m_pSwitch = &owner;
  item.m_nFlags = 3;
  item.m_strCheckFn = L"f";
  item.m_strGrayFn = L"g";
  item.m_nIconIndex = 4;
  item.m_nCommandId = 9;
  SubMenu(item);
  TMenuItem copy(item);
  EXPECT_EQ(copy.m_pSubMenu, nullptr);
  EXPECT_EQ(copy.m_pSwitch, &owner);
  EXPECT_EQ(copy.m_nFlags, 3u);
  EXPECT_TRUE(copy.m_strCheckFn == L"f" && copy.m_strGrayFn == L"g" && copy.m_strIconName == L"c");
  EXPECT_EQ(copy.m_nIconIndex, 4);
  EXPECT_EQ(copy.m_nCommandId, 9);
}

TEST(MenuModel, ASubMenuThatIsNotOwnedSurvivesItsLine) {
  TMenuStack recent;
  recent.AddRecent(L"a");
  {
    TMenuBar common;
    Line(common, L"recent", L"")->m_pSubMenu = &recent;
  }
  EXPECT_EQ(recent.Length(), 1);
}

TEST(MenuModel, FindItemByCommandGoesDepthFirstAndNeverComparesALineWithASubMenu) {
  TMenuBar bar;
  TMenuItem* header = Line(bar, L"header", L"x");
  TMenuItem* inner = Line(*SubMenu(*header), L"inner", L"x");
  Line(bar, L"later", L"x");
  EXPECT_EQ(bar.FindItemByCommand(L"x"), inner);
  EXPECT_EQ(bar.FindItemByCommand(L"X"), nullptr);
}

TEST(MenuModel, ASearchLeavesTheCursorOnTheLineFound) {
  TMenuBar bar;
  Line(bar, L"a", L"1");
  Line(bar, L"b", L"2");
  Line(bar, L"c", L"3");
  bar.FindItemByCommand(L"2");
  EXPECT_EQ(bar.Cursor(), 1);
}

TEST(MenuModel, ASearchForABlockLeavesTheCursorOnIt) {
  TMenuSystem system;
  for (const wchar_t* name : {L"A", L"Screen", L"C"}) {
    system.Append(new TMenuBar);
    system.Last()->m_strName = name;
  }
  EXPECT_EQ(system.FindBarIndexNoCase(L"SCREEN"), 1);
  EXPECT_EQ(system.Cursor(), 1);
  EXPECT_EQ(system.FindBar(L"A"), system.At(0));
  EXPECT_EQ(system.Cursor(), 0);
}

TEST(MenuModel, FindItemByIdSkipsSeparatorsAndLinesWithASubMenu) {
  TMenuBar bar;
  Line(bar, L"--", L"");
  TMenuItem* header = Line(bar, L"header", L"");
  TMenuItem* inner = Line(*SubMenu(*header), L"inner", L"");
  EXPECT_EQ(bar.FindItemById(0), inner);
  inner->m_nCommandId = 7;
  EXPECT_EQ(bar.FindItemById(0), nullptr);
  EXPECT_EQ(bar.FindItemById(7), inner);
}

TEST(MenuModel, FindItemByLabelLooksAtTheTopLevelOnly) {
  TMenuBar bar;
  TMenuItem* header = Line(bar, L"header", L"");
  Line(*SubMenu(*header), L"inner", L"");
  EXPECT_EQ(bar.FindItemByLabel(L"header"), header);
  EXPECT_EQ(bar.FindItemByLabel(L"inner"), nullptr);
}

TEST(MenuModel, TheSystemSearchesAllBlocksInOrder) {
  TMenuSystem system;
  for (const wchar_t* name : {L"A", L"B", L"B"}) {
    system.Append(new TMenuBar);
    system.Last()->m_strName = name;
    Line(*system.Last(), name, L"x");
  }
  EXPECT_EQ(system.FindItemByCommand(L"x"), system.At(0)->At(0));
  EXPECT_EQ(system.FindBar(L"B"), system.At(1));
  EXPECT_EQ(system.FindBar(L"b"), nullptr);
  EXPECT_EQ(system.FindBarIndexNoCase(L"b"), 1);
  EXPECT_EQ(system.FindBarIndexNoCase(L"bb"), -1);
}

TEST(MenuModel, FindResourceGivesTheFirstIndexWithThatExactName) {
  TMenuSystem system;
  system.m_resources.Append(new TMenuResItem(L"a", L"", L""));
  system.m_resources.Append(new TMenuResItem(L"B", L"", L""));
  system.m_resources.Append(new TMenuResItem(L"B", L"", L""));
  EXPECT_EQ(system.FindResource(L"B"), 1);
  EXPECT_EQ(system.FindResource(L"b"), -1);
}

TEST(MenuModel, FindStateOfAnUnknownValueGivesTheFirstState) {
  TMenuSwitchItem item;
  EXPECT_EQ(item.FindState(0), nullptr);
  for (int value : {5, 6}) {
    item.m_states.Append(new TSwitchStateItem);
    item.m_states.Last()->m_nValue = value;
  }
  EXPECT_EQ(item.FindState(6), item.m_states.At(1));
  EXPECT_EQ(item.FindState(99), item.m_states.At(0));
}

TEST(MenuModel, EmptyingTheListsLeavesTitleAndRecentList) {
  TMenuSystem system;
  system.m_strTitle = L"t";
  system.m_recent.AddRecent(L"a");
  system.Append(new TMenuBar);
  system.m_switches.Append(new TMenuSwitchItem);
  system.m_resources.Append(new TMenuResItem);
  system.EmptyLists();
  EXPECT_EQ(system.Length() + system.m_switches.Length() + system.m_resources.Length(), 0);
  EXPECT_TRUE(system.m_strTitle == L"t");
  EXPECT_EQ(system.m_recent.Length(), 1);
}

TEST(MenuModel, AWalkVisitsEveryLineInTheOrderOfTheFile) {
  TMenuBar bar;
  TMenuItem* a = Line(bar, L"a", L"");
  TMenuItem* b = Line(*SubMenu(*a), L"b", L"");
  Line(*SubMenu(*b), L"c", L"");
  Line(bar, L"d", L"");
  std::string order;
  MenuWalk walk(bar);
  while (TMenuItem* item = walk.Next()) order += Utf8(item->m_strLabel);
  EXPECT_EQ(order, "abcd");
}

// ---- the recent list

struct Sources : RecentSources {
  bool IsRunMode() override { return runMode; }
  TMenuBar* ScreenRoot() override { return root; }
  TMenuItem* FindMenuLine(const wchar_t* command) override {
    return system ? system->FindItemByCommand(command) : nullptr;
  }
  bool runMode = false;
  TMenuBar* root = nullptr;
  TMenuSystem* system = nullptr;
};

std::string Commands(TMenuStack& stack) {
  std::string text;
  for (TMenuItem* item : stack) text += Utf8(item->m_strCommand) + " ";
  return text;
}

TEST(RecentList, IgnoresNothingBlankAndNewline) {
  TMenuStack recent;
  for (const wchar_t* text : {L"", L" ", L"\n"}) recent.AddRecent(text);
  recent.AddRecent(nullptr);
  EXPECT_EQ(recent.Length(), 0);
  recent.AddRecent(L"  ");
  EXPECT_EQ(recent.Length(), 1);
}

TEST(RecentList, PutsTheNewestFirst) {
  TMenuStack recent;
  for (const wchar_t* text : {L"a", L"b", L"c"}) recent.AddRecent(text);
  EXPECT_EQ(Commands(recent), "c b a ");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"c");
}

TEST(RecentList, TheCommandOfTheHeadChangesNothing) {
  TMenuStack recent;
  for (const wchar_t* text : {L"a", L"b"}) recent.AddRecent(text);
  TMenuItem* head = recent.At(0);
  recent.AddRecent(L"b");
  EXPECT_EQ(recent.At(0), head);
  EXPECT_EQ(Commands(recent), "b a ");
}

TEST(RecentList, TheCommandOfTheThirdEntryMovesItToTheHead) {
  TMenuStack recent;
  for (const wchar_t* text : {L"a", L"b", L"c"}) recent.AddRecent(text);
  recent.At(2)->m_strLabel = L"label";
  recent.AddRecent(recent.At(2)->m_strCommand);
  EXPECT_EQ(Commands(recent), "a c b ");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"label");
}

TEST(RecentList, AnEleventhCommandDropsTheOldest) {
  TMenuStack recent;
  for (wchar_t c = L'a'; c <= L'k'; ++c) {
    const wchar_t text[] = {c, 0};
    recent.AddRecent(text);
  }
  EXPECT_EQ(Commands(recent), "k j i h g f e d c b ");
}

TEST(RecentList, ACopyThatIsDroppedDeletesNoSubMenu) {
  TMenuItem header(L"header", L"x");
  Line(*SubMenu(header), L"inner", L"y");
  {
    TMenuStack recent;
    recent.Append(new TMenuItem(header));
    EXPECT_EQ(recent.At(0)->m_pSubMenu, nullptr);
    for (wchar_t c = L'a'; c <= L'j'; ++c) {
      const wchar_t text[] = {c, 0};
      recent.AddRecent(text);
    }
    EXPECT_EQ(Commands(recent), "j i h g f e d c b a ") << "the copy was the oldest";
    recent.Append(new TMenuItem(header));
  }
  ASSERT_EQ(header.m_pSubMenu->Length(), 1);
  EXPECT_TRUE(header.m_pSubMenu->At(0)->m_strLabel == L"inner");
}

TEST(RecentList, TakesLabelAndIconFromTheScreenMenuFirstThenFromTheBlocks) {
  TMenuBar root;
  TMenuSystem system;
  system.Append(new TMenuBar);
  Line(*system.At(0), L"block", L"x");
  Line(*system.At(0), L"only here", L"y");
  Line(root, L"screen", L"x")->m_nIconIndex = 3;
  Sources sources;
  sources.root = &root;
  sources.system = &system;
  TMenuStack recent;
  recent.SetSources(&sources);
  recent.AddRecent(L"x");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"screen");
  EXPECT_EQ(recent.At(0)->m_nIconIndex, 3);
  recent.AddRecent(L"y");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"only here");
  recent.AddRecent(L"z");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"z");
}

TEST(RecentList, RunModeKeepsTheBareCommandAsLabel) {
  TMenuBar root;
  Line(root, L"screen", L"x");
  Sources sources;
  sources.root = &root;
  sources.runMode = true;
  TMenuStack recent;
  recent.SetSources(&sources);
  recent.AddRecent(L"x");
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"x");
}

// ---- names

TEST(MenuModel, ANewSystemIsEmptyAndItsReservedNumbersAreZero) {
  TMenuSystem system;
  EXPECT_EQ(system.m_nReserved1, 0u);
  EXPECT_EQ(system.m_nReserved2, 0u);
  EXPECT_TRUE(system.m_strTitle.IsEmpty());
  EXPECT_EQ(system.Length() + system.m_resources.Length() + system.m_switches.Length(), 0);
}

TEST(MenuModel, FindResourceLooksFromTheFirstAndIsExact) {
  TMenuSystem system;
  for (const wchar_t* name : {L"wall", L"door", L"wall"})
    system.m_resources.Append(new TMenuResItem(name, L"", L""));
  EXPECT_EQ(system.FindResource(L"wall"), 0);
  EXPECT_EQ(system.FindResource(L"door"), 1);
  EXPECT_EQ(system.FindResource(L"Door"), -1);
}

TEST(NamePool, EqualNamesHaveOneNumber) {
  NamePool pool;
  const int wall = pool.Add("Wall"), other = pool.Add("WALL");
  EXPECT_EQ(pool.Add("Wall"), wall);
  EXPECT_NE(other, wall);
  EXPECT_EQ(pool.Count(), 2);
}

TEST(NamePool, NamesAddedTogetherGetTheNumbersOfNamesAddedOneByOne) {
  std::mt19937 random(3);
  std::vector<std::string> names;
  for (int i = 0; i < 3000; ++i) {
    std::string name(1 + random() % 3, 'a');
    for (char& c : name) c = "aAbBzZ09_"[random() % 9];
    names.push_back(name);
  }
  NamePool oneByOne, together;
  for (size_t at = 0; at < names.size();) {
    const size_t count = std::min(names.size() - at, size_t{1 + random() % 64});
    std::vector<NamePool::Key> keys;
    for (size_t i = 0; i < count; ++i) keys.push_back(together.Hash(names[at + i]));
    std::vector<int> numbers(count);
    together.Add(keys.data(), count, numbers.data());
    for (size_t i = 0; i < count; ++i) ASSERT_EQ(numbers[i], oneByOne.Add(names[at + i]));
    at += count;
  }
  for (int i = 0; i < together.Count(); ++i)
    EXPECT_EQ(together.CaseClass(i), oneByOne.CaseClass(i));
}

TEST(NamePool, NamesOfEachLengthAreDistinguishedByEachCharacter) {
  std::vector<std::string> names;
  for (size_t length = 1; length <= 60; ++length)
    for (size_t at = 0; at <= length; ++at) {
      std::string name(length, 'n');
      if (at < length) name[at] = 'm';
      names.push_back(name);
    }
  NamePool pool;
  for (size_t i = 0; i < names.size(); ++i) EXPECT_EQ(pool.Add(names[i]), static_cast<int>(i));
  for (size_t i = 0; i < names.size(); ++i) EXPECT_EQ(pool.Add(names[i]), static_cast<int>(i));
}

TEST(NamePool, NamesThatDifferOnlyInCaseAreOneCaseClass) {
  NamePool pool;
  const int wall = pool.Add("a_very_long_name_of_a_Wall");
  const int upper = pool.Add("A_VERY_LONG_NAME_OF_A_WALL");
  const int mixed = pool.Add("a_very_long_name_of_a_wALL");
  const int hall = pool.Add("a_very_long_name_of_a_hall");
  const int one = pool.Add("0P"), other = pool.Add("P0");
  EXPECT_EQ(pool.CaseClass(upper), wall);
  EXPECT_EQ(pool.CaseClass(mixed), wall);
  EXPECT_EQ(pool.CaseClass(hall), hall);
  EXPECT_EQ(pool.CaseClass(one), one);
  EXPECT_EQ(pool.CaseClass(other), other);
}

TEST(NamePool, OnlyTheTwoCasesOfALetterAreEqual) {
  NamePool pool;
  for (const char* pair : {"aA", "bB", "mM", "yY", "zZ"}) {
    const int small = pool.Add(std::string_view(pair, 1));
    EXPECT_EQ(pool.CaseClass(pool.Add(std::string_view(pair + 1, 1))), small);
  }
  for (const char* name : {"_", "0", "9"}) {
    const int number = pool.Add(name);
    EXPECT_EQ(pool.CaseClass(number), number);
  }
}

TEST(NamePool, ATableEntryIsFoundByItsFirstNameInAnyCase) {
  NamePool pool;
  const std::vector<int> table = {pool.Add("Wall"), pool.Add("WALL"), pool.Add("door")};
  const int lower = pool.Add("wall"), upper = pool.Add("DOOR"), none = pool.Add("window");
  const NameLookup lookup(pool, table);
  EXPECT_EQ(lookup.Find(lower), 0);
  EXPECT_EQ(lookup.Find(upper), 2);
  EXPECT_EQ(lookup.Find(none), -1);
}

TEST(NamePool, AgreesWithALinearSearchForManyNames) {
  std::vector<std::string> names;
  for (int i = 0; i < 500; ++i) names.push_back("n" + std::to_string(i % 300));
  for (int i = 0; i < 310; ++i) names.push_back("N" + std::to_string(i));
  NamePool pool;
  std::vector<int> table;
  for (int i = 0; i < 500; ++i) table.push_back(pool.Add(names[static_cast<size_t>(i)]));
  std::vector<int> asked;
  for (size_t i = 500; i < names.size(); ++i) asked.push_back(pool.Add(names[i]));
  const NameLookup lookup(pool, table);
  for (int i = 0; i < 310; ++i)
    EXPECT_EQ(lookup.Find(asked[static_cast<size_t>(i)]), i < 300 ? i : -1);
}

TEST(FoldCase, OnlyTheUnitsOfTheseRangesHaveALowerCase) {
  const auto isCapital = [](unsigned u) {
    const auto within = [u](unsigned first, unsigned last) { return u >= first && u <= last; };
    return within('A', 'Z') || (within(0xC0, 0xDE) && u != 0xD7) ||
           (within(0x391, 0x3A9) && u != 0x3A2) || within(0x400, 0x42F) || within(0xFF21, 0xFF3A);
  };
  for (unsigned u = 0; u < 0x10000; ++u) {
    const auto folded = static_cast<unsigned>(FoldCase(static_cast<wchar_t>(u)));
    const unsigned step = u >= 0x400 && u <= 0x40F ? 0x50 : 0x20;
    ASSERT_EQ(folded, isCapital(u) ? u + step : u);
  }
}

TEST(FoldCase, FoldsTheLettersOfTheCodePagesInUse) {
  EXPECT_TRUE(EqualNamesNoCase(L"Ωmega", L"ωMEGA"));
  EXPECT_TRUE(EqualNamesNoCase(L"Я", L"я"));
  EXPECT_TRUE(EqualNamesNoCase(L"Ё", L"ё"));
  EXPECT_TRUE(EqualNamesNoCase(L"Ａ", L"ａ"));
  EXPECT_TRUE(EqualNamesNoCase(L"É", L"é"));
  EXPECT_FALSE(EqualNamesNoCase(L"×", L"÷"));
  EXPECT_FALSE(EqualNamesNoCase(L"墙", L"柱"));
  EXPECT_FALSE(EqualNamesNoCase(L"a", L"ab"));
  EXPECT_FALSE(EqualNamesNoCase(L"wall", L"walk")) << "each unit counts, not the first alone";
}

}  // namespace
