// Depth and size: a hundred thousand nested sub-menus on a stack of 256 KiB, and work in linear and
// not quadratic proportion to the file.
#include <gtest/gtest.h>

#include "menu/name_pool.h"
#include "tests/menu/menu_testing.h"

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kDepth = 100000;
constexpr int kFileDepth = 200000;
#else
constexpr int kDepth = 100000;
constexpr int kFileDepth = 1000000;
#endif

std::string InBlock(const std::string& lines) {
  return "MENU_TITLE=\"t\"\n***A\n" + lines + "***SWITCH\n***RESOURCE\n";
}

int DepthOf(TMenuBar& bar) {
  int depth = 0;
  for (TMenuBar* at = &bar; at->Length() && at->At(0)->m_pSubMenu; at = at->At(0)->m_pSubMenu)
    ++depth;
  return depth;
}

TEST(MenuDepth, ADeepSourceIsReadSearchedSavedAndFreedOnASmallStack) {
  OnSmallStack([] {
    Compiled compiled;
    Compile(InBlock(Repeated("[->a]\n", kDepth) + Repeated("[<-b]x;\n", kDepth)), compiled);
    EXPECT_EQ(compiled.result, 0);
    EXPECT_EQ(DepthOf(*compiled.system.At(0)), kDepth);
    EXPECT_NE(compiled.system.FindItemByCommand(L"x\n"), nullptr);
    EXPECT_EQ(compiled.system.FindItemByCommand(L"y"), nullptr);
    const std::string bytes = SaveBytes(compiled.system);
    TMenuSystem back;
    EXPECT_EQ(LoadBytes(back, bytes), "");
    EXPECT_EQ(DepthOf(*back.At(0)), kDepth);
  });
}

TEST(MenuDepth, ADeepCompiledFileIsReadWrittenAndFreedOnASmallStack) {
  OnSmallStack([] {
    TMenuSystem system;
    system.Append(new TMenuBar);
    TMenuBar* bar = system.At(0);
    for (int i = 0; i < kFileDepth; ++i) {
      bar->Append(new TMenuItem);
      bar = bar->At(0)->m_pSubMenu = new TMenuBar;
    }
    const std::string bytes = SaveBytes(system);
    TMenuSystem back;
    EXPECT_EQ(LoadBytes(back, bytes), "");
    EXPECT_EQ(DepthOf(*back.At(0)), kFileDepth);
    // Truncated where the nesting is half as deep.
    EXPECT_EQ(LoadBytes(back, bytes.substr(0, bytes.size() / 4)), "CArchiveException");
  });
}

TEST(MenuDepth, RemovingALineFreesItsDeeplyNestedSubMenus) {
  OnSmallStack([] {
    TMenuBar top;
    TMenuBar* bar = &top;
    for (int i = 0; i < kDepth; ++i) {
      bar->Append(new TMenuItem);
      bar = bar->At(0)->m_pSubMenu = new TMenuBar;
    }
    EXPECT_EQ(top.Remove(0), 1);
    EXPECT_EQ(top.Length(), 0);
  });
}

// The nesting pass must take near-linear time here; level by level, each case would visit about ten
// thousand million lines.
TEST(MenuDepth, PathologicalRangesTakeNearLinearTime) {
  for (const std::string& lines :
       {Repeated("[->a]\n", kDepth), Repeated("[<-a]\n", kDepth),
        Repeated("[->a]\n[<-<-b]\n", kDepth),
        Repeated("[->a]\n", kDepth) + Repeated("[<-<-<-b]\n", kDepth / 2),
        Repeated("[->a]\n[<-b]\n", kDepth)}) {
    Compiled compiled;
    Compile(InBlock(lines), compiled);
    EXPECT_EQ(compiled.result, 0);
  }
}

TEST(MenuDepth, NestingTakesAtMostTwoStepsALine) {
  for (int lines : {1000, 30000})
    for (int shape = 0; shape < 4; ++shape) {
      TMenuBar bar;
      for (int i = 0; i < lines; ++i) {
        const bool opens[] = {i < lines / 2, i % 2 == 0, i % 3 != 2, true};
        bar.Append(new TMenuItem(opens[shape] ? L"->a" : L"<-b", L""));
      }
      const int steps = NestSubMenus(bar);
      EXPECT_GT(steps, 0);
      EXPECT_LE(steps, 2 * lines + 1) << "shape " << shape;
    }
}

TEST(MenuDepth, ABlockWithoutSubMenusTakesOneStep) {
  TMenuBar bar;
  for (const wchar_t* label : {L"a", L"<-b", L"c->"}) bar.Append(new TMenuItem(label, L""));
  EXPECT_EQ(NestSubMenus(bar), 1);
  EXPECT_EQ(bar.Length(), 3);
}

TEST(MenuDepth, ALookUpByNameComparesAFewNamesHoweverManyThereAre) {
  for (int count : {100, 20000}) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back("ICON" + std::to_string(i));
    NamePool pool;
    for (int round = 0; round < 2; ++round)
      for (const std::string& name : names) pool.Add(name);
    EXPECT_EQ(pool.Count(), count);
    EXPECT_GE(pool.Comparisons(), static_cast<size_t>(count)) << "all that were known";
    EXPECT_LE(pool.Comparisons(), 2 * static_cast<size_t>(count));
  }
}

TEST(MenuDepth, EachCharacterOfANameChangesItsHash) {
  const std::string others = "abcdefghijklmnop";
  for (size_t length = 1; length <= 40; ++length)
    for (size_t at = 0; at < length; ++at) {
      std::vector<std::string> names(others.size(), std::string(length, 'z'));
      for (size_t i = 0; i < names.size(); ++i) names[i][at] = others[i];
      NamePool pool;
      for (int round = 0; round < 2; ++round)
        for (const std::string& name : names) pool.Add(name);
      EXPECT_LE(pool.Comparisons(), names.size() + 2) << length << " characters, the one at " << at;
    }
}

TEST(MenuDepth, ANameInThousandsOfCasesIsFoundAfterAFewComparisons) {
  constexpr size_t kLetters = 13, kCount = 1 << kLetters;
  std::vector<std::string> names(kCount, std::string(kLetters, 'a'));
  for (size_t i = 0; i < kCount; ++i)
    for (size_t letter = 0; letter < kLetters; ++letter)
      if (i >> letter & 1) names[i][letter] = 'A';
  NamePool pool;
  for (int round = 0; round < 2; ++round)
    for (size_t i = 0; i < kCount; ++i) EXPECT_EQ(pool.Add(names[i]), static_cast<int>(i));
  EXPECT_EQ(pool.CaseClass(kCount - 1), 0);
  EXPECT_GE(pool.Comparisons(), 3 * kCount - 2) << "heads twice, variants once";
  EXPECT_LE(pool.Comparisons(), 5 * kCount);
}

TEST(MenuDepth, ManyPairsOnOneLineCloseAsManyLevels) {
  Compiled compiled;
  Compile(InBlock(Repeated("[->a]\n", 90) + "[" + Repeated("<-", 90) + "b]\n"), compiled);
  EXPECT_EQ(DepthOf(*compiled.system.At(0)), 90);
}

}  // namespace
