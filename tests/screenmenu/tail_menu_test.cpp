// The pop-up of a right click on the palette and the effect of its lines.
#include <gtest/gtest.h>

#include "menu_fixture.h"
#include "screenmenu/tail_menu.h"

namespace {

using namespace fixture;

class TailMenu : public testing::Test {
 protected:
  TailMenu() {
    root.m_pSubMenu = new TMenuBar;
    AddLine(*AddHeader(*root.m_pSubMenu, L"墙体"), L"画墙", L"TWall\n");
    AddLine(*root.m_pSubMenu, L"轴网", L"TAxis\n");
    AddHeader(*root.m_pSubMenu, L"门窗");
    bar.BackTo(&root);
  }
  std::vector<std::wstring> Labels(bool help, bool limit) {
    tail = qvx::BuildTailMenu({help, limit, bar.RootBar(), &system, L"_TCustomize"});
    std::vector<std::wstring> labels;
    for (const TMenuItem* line : *tail) labels.emplace_back(line->m_strLabel);
    return labels;
  }
  TMenuItem root{L"奇维建筑", L""};
  TScreenMenuBar bar;
  TMenuSystem system;
  std::unique_ptr<TMenuBar> tail;
};

using Words = std::vector<std::wstring>;

TEST_F(TailMenu, ALeafOffersHelpJumpsAndCustomising) {
  EXPECT_EQ(Labels(true, false), (Words{L"实时助手", L"--", L"墙体", L"门窗", L"--", L"自 定 义"}));
  EXPECT_TRUE(tail->At(0)->m_strCommand == L"*实时助手");
  EXPECT_TRUE(tail->At(2)->m_strCommand == L"*墙体");
  EXPECT_TRUE(tail->At(5)->m_strCommand == L"_TCustomize\n");
}

TEST_F(TailMenu, WithLimitedHeightAndWithoutHelpThereIsOnlyCustomising) {
  EXPECT_EQ(Labels(false, true), (Words{L"自 定 义"}));
}

TEST_F(TailMenu, JumpsAreCopiesWithoutSubMenusOfTheRootsHeadersOnly) {
  Labels(false, false);
  for (const TMenuItem* line : *tail) EXPECT_EQ(line->m_pSubMenu, nullptr);
  EXPECT_NE(root.m_pSubMenu->At(0)->m_pSubMenu, nullptr) << "the originals keep theirs";
}

TEST_F(TailMenu, TheSeparatorIsThereAlsoWithoutAnyJump) {
  TMenuItem bare{L"x", L""};
  bare.m_pSubMenu = new TMenuBar;
  TScreenMenuBar empty;
  empty.BackTo(&bare);
  tail = qvx::BuildTailMenu({false, false, empty.RootBar(), nullptr, L"TCustomize"});
  ASSERT_EQ(tail->Length(), 2);
  EXPECT_TRUE(tail->At(0)->IsSeparator());
}

TEST_F(TailMenu, IconsAreThoseOfTheMenuIfItHasAny) {
  Labels(true, true);
  EXPECT_EQ(tail->At(0)->m_nIconIndex, -1);
  AddResource(system, L"ID_Customize", L"C");
  AddResource(system, L"ID_ItemHelp", L"H");
  Labels(true, true);
  EXPECT_EQ(tail->At(0)->m_nIconIndex, 1);
  EXPECT_EQ(tail->At(2)->m_nIconIndex, 0);
}

TEST_F(TailMenu, AGroupsNameTogglesItsRow) {
  const qvx::TailChoice choice = qvx::DecideTail(L"门窗", bar);
  EXPECT_EQ(choice.kind, qvx::TailChoice::Kind::kToggle);
  EXPECT_EQ(choice.index, 2);
}

TEST_F(TailMenu, OnlyTheExactHelpTextMeansHelp) {
  EXPECT_EQ(qvx::DecideTail(L"实时助手", bar).kind, qvx::TailChoice::Kind::kHelp);
  EXPECT_EQ(qvx::DecideTail(L"实时助手 ", bar).kind, qvx::TailChoice::Kind::kNothing);
}

TEST_F(TailMenu, AnUnknownNameDoesNothing) {
  EXPECT_EQ(qvx::DecideTail(L"画墙", bar).kind, qvx::TailChoice::Kind::kNothing);
  EXPECT_EQ(qvx::DecideTail(L"", TScreenMenuBar()).kind, qvx::TailChoice::Kind::kNothing);
}

TEST(HeaderPopup, OpensAwayFromTheFramesEdge) {
  const RECT frame{0, 0, 1000, 700};
  EXPECT_EQ(qvx::HeaderPopupX({4, 50, 100, 74}, frame), 100);
  EXPECT_EQ(qvx::HeaderPopupX({900, 50, 996, 74}, frame), 900);
  EXPECT_EQ(qvx::HeaderPopupX({450, 50, 550, 74}, frame), 550) << "as far: to the right";
}

}  // namespace
