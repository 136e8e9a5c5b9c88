// The scale pane on the real bar: its position, its menu, the effect of a choice on selection,
// drawing and hatch scale.
#include "statusbar/win/scale_pane.h"

#include "devhost/core/host/host.h"
#include "kernel/entities/qvx_entity.h"
#include "statusbar/win/status_panes.h"
#include "tests/statusbar/win/bar_host.h"

namespace {

const CPoint kAnywhere(0, 0);

class ScaleProbe : public TPScalePane {
 public:
  ~ScaleProbe() override {
    if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Remove(this, TRUE);
  }
  UINT DisplayPopupPaneMenu(CMenu& menu) override {
    lines = LinesOf(::GetSubMenu(menu.m_hMenu, 0));
    ++shown;
    menuShown = menu.m_hMenu;
    return choice;
  }
  std::wstring Text() const {
    CString text;
    GetText(text);
    return text.GetString();
  }
  std::vector<MenuLine> lines;
  UINT choice = 0;
  int shown = 0;
  HMENU menuShown = nullptr;
};

class ScalePane : public BarTest {
 protected:
  void SetUp() override {
    BarTest::SetUp();
    SetVariable(L"HPSCALE", L"1");
  }
  void Choose(UINT command) {
    m_pane.choice = command;
    m_pane.OnLButtonDown(0, kAnywhere);
  }
  double HatchScale() { return std::stod(Variable(L"HPSCALE")); }
  QvxDbWall* AddWall(double scale) {
    auto* wall = new QvxDbWall;
    wall->end = {1000, 0, 0};
    wall->SetPScale(scale);
    AddToDrawing(wall);
    return wall;
  }
  ScaleProbe m_pane;
};

}  // namespace

TEST_F(ScalePane, IsAddedFirstWithAMenuStyleAndItsTextAndRemoved) {
  InitStatusPane(qvx::SwitchPane::kDynDim, true);
  m_pane.Init(true);
  EXPECT_EQ(Bar().GetIndex(&m_pane), 0);
  EXPECT_EQ(m_pane.GetStyle(), 32);
  EXPECT_EQ(m_pane.Text(), L"比例 1:100");
  CString tip;
  m_pane.GetToolTipText(tip);
  EXPECT_STREQ(tip.GetString(), L"单击改变当前比例");
  m_pane.Init(false);
  EXPECT_EQ(Bar().GetIndex(&m_pane), -1);
  EXPECT_EQ(Bar().GetPaneCount(), 1);
}

TEST_F(ScalePane, EitherButtonOpensTheMenu) {
  m_pane.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(m_pane.shown, 1);
  ASSERT_EQ(m_pane.lines.size(), 18u);
  EXPECT_EQ(m_pane.lines[0], (MenuLine{L"1:0.5", 40234, false, false}));
  EXPECT_EQ(m_pane.lines[13], (MenuLine{L"1:300", 40230, false, false}));
  EXPECT_EQ(m_pane.lines[16], (MenuLine{L"", 0, false, false}));
  EXPECT_EQ(m_pane.lines[17], (MenuLine{L"其它比例...", 40231, false, false}));
  m_pane.OnRButtonDown(0, kAnywhere);
  EXPECT_EQ(m_pane.shown, 2);
  EXPECT_FALSE(::IsMenu(m_pane.menuShown)) << "gone after the click";
}

TEST_F(ScalePane, AChoiceWithNothingSelectedSetsTheDrawingAndTheHatchScale) {
  Choose(40223);
  EXPECT_EQ(ScaleOfDrawing(), 50);
  EXPECT_EQ(HatchScale(), 50);
  EXPECT_EQ(m_pane.Text(), L"比例 1:50");
}

TEST_F(ScalePane, AChoiceForASelectionKeepsDrawingAndHatchScale) {
  QvxDbWall* wall = AddWall(100);
  Select({wall});
  Choose(40220);
  EXPECT_EQ(wall->GetPScale(), 20);
  EXPECT_EQ(ScaleOfDrawing(), 100);
  EXPECT_EQ(HatchScale(), 1);
  EXPECT_EQ(m_pane.Text(), L"比例 1:20");
}

TEST_F(ScalePane, CancellingTheMenuChangesNothingNotEvenTheText) {
  m_pane.SetText(L"as it was");
  Choose(0);
  EXPECT_EQ(ScaleOfDrawing(), 100);
  EXPECT_EQ(HatchScale(), 1);
  EXPECT_EQ(m_pane.Text(), L"as it was");
}

TEST_F(ScalePane, AMixedSelectionShowsAsterisksUntilItGetsOneScale) {
  QvxDbWall *a = AddWall(100), *b = AddWall(50);
  Select({a, b});
  m_pane.RefreshText();
  EXPECT_EQ(m_pane.Text(), L"比例 1:***");
  Choose(40232);
  EXPECT_EQ(m_pane.Text(), L"比例 1:1");
}

TEST_F(ScalePane, InPaperSpaceAChoiceSetsItsScale) {
  SetVariable(L"TILEMODE", L"0");
  Choose(40234);
  EXPECT_EQ(m_pane.Text(), L"比例 1:0.5");
  EXPECT_EQ(HatchScale(), 0.5);
  EXPECT_EQ(ScaleOfDrawing(), 100);
  SetVariable(L"TILEMODE", L"1");
  m_pane.RefreshText();
  EXPECT_EQ(m_pane.Text(), L"比例 1:100");
}

TEST_F(ScalePane, TheRealMenuOpensAndALineOfItSetsTheScale) {
  InitScalePane(true);
  RECT rect{};
  ASSERT_TRUE(Bar().GetRect(Bar().GetPane(0), rect));
  const ModalGuest guest([&] {
    HMENU menu = nullptr;
    if (!OpenMenuWindow(&menu)) return false;
    for (int i = 0; i < 9; ++i) ::PostMessageW(Bar().GetWindow(), WM_KEYDOWN, VK_DOWN, 0);
    ::PostMessageW(Bar().GetWindow(), WM_KEYDOWN, VK_RETURN, 0);
    return true;
  });
  ::SendMessageW(Bar().GetWindow(), WM_LBUTTONDOWN, MK_LBUTTON,
                 MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2));
  EXPECT_TRUE(guest.IsDone());
  EXPECT_EQ(ScaleOfDrawing(), 50);
  EXPECT_EQ(ShownPanes()[0].text, L"比例 1:50");
  InitScalePane(false);
}
