// The passes: icons, sub-menus (compared with a direct implementation, level by level), switches
// and condition prefixes.
#include <gtest/gtest.h>

#include <random>

#include "menu/menu_passes.h"
#include "tests/menu/menu_testing.h"

namespace {

void Fill(TMenuBar& bar, const std::vector<std::wstring>& labels) {
  for (const std::wstring& label : labels) bar.Append(new TMenuItem(label.c_str(), L""));
}

std::string Nested(const std::vector<std::wstring>& labels) {
  TMenuBar bar;
  Fill(bar, labels);
  NestSubMenus(bar);
  return DumpBar(bar);
}

// ---- nesting

TEST(NestSubMenus, MovesTheLinesOfARangeUnderItsFirst) {
  EXPECT_EQ(Nested({L"x", L"->a", L"b", L"<-c", L"d"}),
            "\"x\"\n\"a\" >\n  \"b\"\n  \"c\"\n\"d\"\n");
}

TEST(NestSubMenus, OnePairClosesOneLevel) {
  EXPECT_EQ(Nested({L"->a", L"->b", L"<-<-c"}), "\"a\" >\n  \"b\" >\n    \"c\"\n");
  EXPECT_EQ(Nested({L"->a", L"->b", L"<-c", L"<-d"}), "\"a\" >\n  \"b\" >\n    \"c\"\n  \"d\"\n");
}

TEST(NestSubMenus, RangesMayFollowEachOther) {
  EXPECT_EQ(Nested({L"->a", L"<-b", L"->c", L"<-d"}), "\"a\" >\n  \"b\"\n\"c\" >\n  \"d\"\n");
}

TEST(NestSubMenus, RangesThatAreNotOpenedOrNotClosedAreUnchanged) {
  EXPECT_EQ(Nested({L"<-a", L"b"}), "\"<-a\"\n\"b\"\n");
  EXPECT_EQ(Nested({L"->a", L"b"}), "\"->a\"\n\"b\"\n");
  EXPECT_EQ(Nested({L"->a", L"<-<-b", L"c"}), "\"->a\"\n\"<-<-b\"\n\"c\"\n");
}

TEST(NestSubMenus, ARangeThatIsNotClosedPreventsLaterOnes) {
  EXPECT_EQ(Nested({L"->a", L"->b", L"<-c"}), "\"->a\"\n\"->b\"\n\"<-c\"\n");
}

TEST(NestSubMenus, SurplusPairsAreBalancedByLaterOpenings) {
  EXPECT_EQ(Nested({L"->a", L"<-<-b", L"->c", L"->d", L"<-e"}),
            "\"a\" >\n  \"<-<-b\"\n  \"->c\"\n  \"->d\"\n  \"e\"\n");
}

TEST(NestSubMenus, TheOpeningLineKeepsItsCommand) {
  TMenuBar bar;
  bar.Append(new TMenuItem(L"->a", L"cmd"));
  bar.Append(new TMenuItem(L"<-b", L""));
  NestSubMenus(bar);
  EXPECT_TRUE(bar.At(0)->m_strCommand == L"cmd");
  EXPECT_TRUE(bar.At(0)->m_pSubMenu->m_strName.IsEmpty());
  EXPECT_EQ(bar.At(0)->m_pSubMenu->m_bOwned, 1);
}

TEST(NestSubMenus, TheCachedEndsOfAllBarsAreRight) {
  TMenuBar bar;
  Fill(bar, {L"->a", L"b", L"<-c"});
  NestSubMenus(bar);
  EXPECT_EQ(bar.First(), bar.Last());
  EXPECT_EQ(bar.First()->m_pSubMenu->First()->m_strLabel, L"b");
  EXPECT_EQ(bar.First()->m_pSubMenu->Last()->m_strLabel, L"c");
}

// Level by level: find the ranges, move the lines of each, and repeat in each new bar.
int PairsOf(const TWCString& label) {
  int pairs = 0;
  while (label[2 * pairs] == L'<' && label[2 * pairs + 1] == L'-') ++pairs;
  return pairs;
}

void NestAsWorded(TMenuBar& bar) {
  std::vector<TItemDot> ranges;
  int depth = 0, first = -1;
  for (int i = 0; i < bar.Length(); ++i) {
    const TWCString& label = bar.At(i)->m_strLabel;
    if (label.Length() >= 2 && label[0] == L'-' && label[1] == L'>') {
      ++depth;
      if (first < 0) first = i;
    } else if (const int pairs = PairsOf(label); pairs && first >= 0) {
      const bool exact = depth == pairs;
      depth -= pairs;
      if (!exact) continue;
      ranges.push_back({first, i});
      first = -1;
    }
  }
  int moved = 0;
  for (TItemDot range : ranges) {
    TMenuItem* opening = bar.At(range.first - moved);
    TMenuItem* closing = bar.At(range.last - moved);
    opening->m_strLabel = TWCString(opening->m_strLabel + 2);
    closing->m_strLabel = TWCString(closing->m_strLabel + 2);
    opening->m_pSubMenu = new TMenuBar;
    for (int i = range.first; i < range.last; ++i)
      opening->m_pSubMenu->Append(bar.Detach(range.first + 1 - moved));
    moved += range.last - range.first;
    NestAsWorded(*opening->m_pSubMenu);
  }
}

TEST(NestSubMenus, AgreesWithTheLevelByLevelRuleOnRandomLabels) {
  const std::vector<std::wstring> kinds = {L"->a",   L"->",      L"<-b",    L"<-",
                                           L"<-<-c", L"<-->d",   L"<-<-->", L"->->e",
                                           L"->-",   L"<-<-<-f", L"g",      L"-"};
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::vector<std::wstring> labels;
    const size_t length = random() % 14;
    const size_t variety = 2 + random() % (kinds.size() - 1);
    while (labels.size() < length) labels.push_back(kinds[random() % variety]);
    TMenuBar bar;
    Fill(bar, labels);
    NestAsWorded(bar);
    ASSERT_EQ(Nested(labels), DumpBar(bar)) << "round " << round;
  }
}

// ---- names

std::string WithSections(const std::string& lines, const std::string& switches,
                         const std::string& resources) {
  return "MENU_TITLE=\"t\"\n***A\n" + lines + "***SWITCH\n" + switches + "***RESOURCE\n" +
         resources;
}

TEST(ResolveIcons, IgnoresCaseAndTakesTheFirstOfTwo) {
  Compiled compiled;
  Compile(WithSections("wall [a]\nNONE [b]\n[c]\n", "",
                       "X=\"\",\"\"\nWALL=\"1\",\"\"\nwall=\"2\",\"\"\n"),
          compiled);
  EXPECT_EQ(compiled.system.At(0)->At(0)->m_nIconIndex, 1);
  EXPECT_EQ(compiled.system.At(0)->At(1)->m_nIconIndex, -1);
  EXPECT_EQ(compiled.system.At(0)->At(2)->m_nIconIndex, -1);
}

TEST(ResolveIcons, ReachesLinesThatAreNestedLaterAndSwitchStates) {
  Compiled compiled;
  Compile(WithSections("[->a]\nI [<-b]\n", "**S GET=g SET=s\n0=i,\"l\"\n", "I=\"\",\"\"\n"),
          compiled);
  EXPECT_EQ(compiled.system.At(0)->At(0)->m_pSubMenu->At(0)->m_nIconIndex, 0);
  EXPECT_EQ(compiled.system.m_switches.At(0)->m_states.At(0)->m_nIconIndex, 0);
}

// Many names, so that some are looked up before the block is dropped and some are pending.
TEST(ResolveNames, NothingIsResolvedForBlocksThatABadMaskDrops) {
  for (int lines : {1, 70, 200}) {
    Compiled compiled;
    Compile("MENU_TITLE=\"t\"\n***A\n" + Repeated("SW [*SWITCH*]\nI [a]\n", lines) +
                "***B C=0,1\n" + Repeated("SW [*SWITCH*]\nI [b]\n", lines) + "***D\n" +
                Repeated("I [d]\n", lines) +
                "***SWITCH\n**SW GET=g SET=s\n0=I,\"l\"\n***RESOURCE\nI=\"\",\"\"\n",
            compiled);
    EXPECT_EQ(compiled.result, 0);
    EXPECT_EQ(compiled.system.Length(), 0);
    EXPECT_EQ(compiled.system.m_switches.At(0)->m_states.At(0)->m_nIconIndex, 0);
  }
}

TEST(ResolveSwitches, TakesTheFirstSwitchOfThatNameInAnyCase) {
  Compiled compiled;
  Compile(WithSections("[->a]\nsw [<-*switch*]\nNONE [*SWITCH*]\nSW [SWITCH]\n",
                       "**SW GET=g SET=s\n0=i,\"l\"\n**sw GET=h SET=s\n0=i,\"l\"\n", ""),
          compiled);
  TMenuBar& bar = *compiled.system.At(0);
  EXPECT_EQ(bar.At(0)->m_pSubMenu->At(0)->m_pSwitch, compiled.system.m_switches.At(0));
  EXPECT_EQ(bar.At(1)->m_pSwitch, nullptr);
  EXPECT_EQ(bar.At(2)->m_pSwitch, nullptr);
}

TEST(ResolveSwitches, AMarkWithoutANameHasNoSwitch) {
  Compiled compiled;
  Compile(WithSections("[*SWITCH*]\nSW [*SWITCH*]\n", "**SW GET=g SET=s\n0=i,\"l\"\n", ""),
          compiled);
  EXPECT_EQ(compiled.system.At(0)->At(0)->m_pSwitch, nullptr);
  EXPECT_EQ(compiled.system.At(0)->At(1)->m_pSwitch, compiled.system.m_switches.At(0));
}

TEST(ResolveSwitches, ALineWithASubMenuIsNoSwitch) {
  Compiled compiled;
  Compile(WithSections("SW [->*SWITCH*]\n[<-a]\n", "**SW GET=g SET=s\n0=i,\"l\"\n", ""), compiled);
  EXPECT_EQ(compiled.system.At(0)->At(0)->m_pSwitch, nullptr);
  EXPECT_NE(compiled.system.At(0)->At(0)->m_pSubMenu, nullptr);
}

// ---- conditions

std::string Condition(const std::string& label) {
  Compiled compiled;
  Compile(WithSections("[" + label + "]\n", "", ""), compiled);
  return DumpBar(*compiled.system.At(0));
}

TEST(StripConditions, TildeGreysAndExclamationMarkChecks) {
  EXPECT_EQ(Condition("{~=Fn}Text"), "\"Text\" flags 2 gray Fn\n");
  EXPECT_EQ(Condition("{!=Fn}Text"), "\"Text\" flags 1 check Fn\n");
}

TEST(StripConditions, OfSeveralPrefixesOfAKindTheLastCounts) {
  EXPECT_EQ(Condition(" {!=A} {~=B}{!=C} Text "), "\"Text\" flags 3 check C gray B\n");
}

TEST(StripConditions, UnknownPrefixesAreDroppedWithoutAMessage) {
  EXPECT_EQ(Condition("{x=Fn}Text"), "\"Text\"\n");
  EXPECT_EQ(Condition("{~~=Fn}Text"), "\"Text\"\n");
  EXPECT_EQ(Condition("{x}"), "\"\"\n");
  EXPECT_EQ(Condition("{}a"), "\"a\"\n");
}

TEST(StripConditions, WordsAreDelimitedByBlanks) {
  EXPECT_EQ(Condition("{ ~ x = Fn y }T"), "\"T\" flags 2 gray Fn\n");
  EXPECT_EQ(Condition("{x ~=Fn}T"), "\"T\"\n");
  EXPECT_EQ(Condition("{~=}T"), "\"T\" flags 2\n");
  EXPECT_EQ(Condition("{~=a=b}T"), "\"T\" flags 2 gray a=b\n");
}

TEST(StripConditions, BlanksAreTrimmedAndTabsAreKept) {
  EXPECT_EQ(Condition("  abc  "), "\"abc\"\n");
  EXPECT_EQ(Condition(" abc"), "\"abc\"\n");
  EXPECT_EQ(Condition("abc "), "\"abc\"\n");
  EXPECT_EQ(Condition("\tab"), "\"\\x09ab\"\n");
}

TEST(StripConditions, ShortLabelsAreUnchanged) {
  EXPECT_EQ(Condition(" a"), "\" a\"\n");
  EXPECT_EQ(Condition(" a "), "\"a\"\n");
  EXPECT_EQ(Condition("{}"), "\"{}\"\n");
}

TEST(StripConditions, WithoutAClosingBraceTheLabelIsUnchanged) {
  EXPECT_EQ(Condition("{~=Fn Text"), "\"{~=Fn Text\"\n");
  EXPECT_EQ(Condition("a{~=Fn}"), "\"a{~=Fn}\"\n");
}

TEST(StripConditions, HeadersKeepTheirBraces) {
  Compiled compiled;
  Compile(WithSections("[->{~=F}a]\n[<-{~=G}b]\n", "", ""), compiled);
  EXPECT_EQ(DumpBar(*compiled.system.At(0)), "\"{~=F}a\" >\n  \"b\" flags 2 gray G\n");
}

}  // namespace
