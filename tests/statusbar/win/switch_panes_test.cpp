// The panes of the switches on the real bar: adding and removing, clicks, menus, order of steps.
#include "statusbar/win/switch_panes.h"

#include "devhost/core/host/host.h"
#include "kernel/drawing_switches.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "statusbar/pane_icons.h"
#include "statusbar/status_bar_door.h"
#include "statusbar/win/status_panes.h"
#include "tests/statusbar/win/bar_host.h"

namespace {

const CPoint kAnywhere(0, 0);

std::wstring ToolTip(const AcPane& pane) {
  CString text;
  pane.GetToolTipText(text);
  return text.GetString();
}

// Derived as in a sibling module.
class OwnPane : public CADStatusPane {
 public:
  bool on = false;
  int toggles = 0;
  void OnToggle() override {
    on = !on;
    ++toggles;
  }
  bool IsOn() override { return on; }
  void SetTip(const wchar_t* tip) { m_strToolTip = tip; }
  void SetRefresh(bool refresh) { m_bRefreshMenu = refresh; }
  bool Refreshes() const { return m_bRefreshMenu; }
};

int g_refreshed = 0;

using SwitchPanes = BarTest;

}  // namespace

TEST_F(SwitchPanes, AreAddedLastWithStyleAndToolTipAndRemoved) {
  Probe<TaKhsKsj123> fill;
  Probe<TBaseLinePane> base;
  fill.Init(true);
  base.Init(true);
  EXPECT_EQ(Bar().GetPaneCount(), 2);
  EXPECT_EQ(Bar().GetIndex(&fill), 0);
  EXPECT_EQ(Bar().GetIndex(&base), 1);
  EXPECT_EQ(fill.GetStyle(), 8);
  EXPECT_EQ(base.GetStyle(), 2);
  EXPECT_EQ(ToolTip(fill), L"启动/关闭 墙柱填充");
  EXPECT_EQ(ToolTip(base), L"显示/关闭 墙基线");
  fill.Init(false);
  EXPECT_EQ(Bar().GetPaneCount(), 1);
  fill.Init(false);
  EXPECT_EQ(Bar().GetPaneCount(), 1) << "gone already";
}

TEST_F(SwitchPanes, AreAddedWithTheOffIconEvenWhenOn) {
  Probe<TaKhsKsj123> fill;
  fill.Init(true);
  EXPECT_TRUE(fill.IsOn());
  EXPECT_EQ(fill.GetIcon(), qvx::PaneIcon(57635));
  fill.ShowStateIcon();
  EXPECT_EQ(fill.GetIcon(), qvx::PaneIcon(57636));
}

TEST_F(SwitchPanes, GroupingIsAddedWithTheIconOfItsState) {
  Probe<TMakeGroupPane> group;
  group.Init(true);
  EXPECT_EQ(group.GetIcon(), qvx::PaneIcon(57628));
  group.Init(false);
  g_bMakeGroup = 0;
  group.Init(true);
  EXPECT_EQ(group.GetIcon(), qvx::PaneIcon(57627));
}

TEST_F(SwitchPanes, PickStyleIsUpdatedWhenGroupingIsAddedAndRemoved) {
  Probe<TMakeGroupPane> group;
  const struct {
    const wchar_t* before;
    int grouping;
    const wchar_t* after;
  } kRows[] = {{L"0", 1, L"1"}, {L"1", 0, L"0"}, {L"2", 1, L"3"}, {L"3", 0, L"2"}};
  for (const auto& row : kRows)
    for (const bool add : {true, false}) {
      SetVariable(L"PICKSTYLE", row.before);
      g_bMakeGroup = row.grouping;
      group.Init(add);
      EXPECT_EQ(Variable(L"PICKSTYLE"), row.after) << row.grouping << add;
    }
}

TEST_F(SwitchPanes, AClickOnFillChangesTheIconThenTheStateThenTheStyle) {
  Probe<TaKhsKsj123> fill;
  fill.Init(true);
  fill.icons.clear();
  ViewWaitsForPaint();
  fill.OnLButtonDown(0, kAnywhere);
  EXPECT_FALSE(fill.IsOn());
  EXPECT_EQ(fill.GetStyle(), 2);
  ASSERT_EQ(fill.icons.size(), 1u);
  EXPECT_EQ(fill.icons[0].icon, qvx::PaneIcon(57635));
  EXPECT_TRUE(fill.icons[0].wasOn) << "the icon comes first";
  EXPECT_TRUE(ViewWaitsForPaint());
  fill.OnLButtonDown(0, kAnywhere);
  EXPECT_TRUE(fill.IsOn());
  EXPECT_EQ(fill.GetStyle(), 8);
  EXPECT_EQ(fill.GetIcon(), qvx::PaneIcon(57636));
}

TEST_F(SwitchPanes, AClickOnFillDuringACommandOnlySetsTheStyleAgain) {
  Probe<TaKhsKsj123> fill;
  fill.Init(true);
  fill.icons.clear();
  fill.SetStyle(2);
  ViewWaitsForPaint();
  BeginCommand();
  fill.OnLButtonDown(0, kAnywhere);
  EndCommand();
  EXPECT_TRUE(fill.IsOn());
  EXPECT_TRUE(fill.icons.empty());
  EXPECT_FALSE(ViewWaitsForPaint());
  EXPECT_EQ(fill.GetStyle(), 8);
}

TEST_F(SwitchPanes, BoldBehavesAsFill) {
  Probe<TBoldLinePane> bold;
  bold.Init(true);
  bold.OnLButtonDown(0, kAnywhere);
  EXPECT_TRUE(bold.IsOn());
  EXPECT_EQ(bold.GetIcon(), qvx::PaneIcon(57634));
  BeginCommand();
  bold.OnLButtonDown(0, kAnywhere);
  EndCommand();
  EXPECT_TRUE(bold.IsOn());
  bold.OnLButtonDown(0, kAnywhere);
  EXPECT_FALSE(bold.IsOn());
  EXPECT_EQ(bold.GetIcon(), qvx::PaneIcon(57633));
}

TEST_F(SwitchPanes, AClickOnTheBaseLineDuringACommandChangesTheIconButNotTheState) {
  Probe<TBaseLinePane> base;
  base.Init(true);
  ViewWaitsForPaint();
  BeginCommand();
  base.OnLButtonDown(0, kAnywhere);
  EXPECT_FALSE(base.IsOn());
  EXPECT_EQ(base.GetStyle(), 2);
  EXPECT_EQ(base.GetIcon(), qvx::PaneIcon(57632)) << "ahead of the state";
  EXPECT_FALSE(ViewWaitsForPaint());
  EndCommand();
  base.OnLButtonDown(0, kAnywhere);
  EXPECT_TRUE(base.IsOn());
  EXPECT_EQ(base.GetIcon(), qvx::PaneIcon(57632));
  EXPECT_FALSE(base.icons.back().wasOn) << "the icon comes first";
  EXPECT_TRUE(ViewWaitsForPaint());
}

TEST_F(SwitchPanes, DynamicDimensionsToggleAndPrintTheState) {
  Probe<TDynDimPane> dynDim;
  dynDim.Init(true);
  dynDim.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(g_bDynamicCoord, 0);
  EXPECT_EQ(dynDim.GetIcon(), qvx::PaneIcon(57629));
  dynDim.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(g_bDynamicCoord, 1);
  EXPECT_EQ(dynDim.GetIcon(), qvx::PaneIcon(57630));
  const auto printed = Journal("printed");
  ASSERT_EQ(printed.size(), 2u);
  EXPECT_EQ(printed[0], "<动态标注关>");
  EXPECT_EQ(printed[1], "<动态标注开>");
}

TEST_F(SwitchPanes, AnyOtherValueOfASwitchIsOff) {
  Probe<TDynDimPane> dynDim;
  g_bDynamicCoord = 2;
  EXPECT_FALSE(dynDim.IsOn());
  dynDim.OnToggle();
  EXPECT_EQ(g_bDynamicCoord, 1);
}

TEST_F(SwitchPanes, GroupingTogglesWithPickStyleAlsoDuringACommand) {
  Probe<TMakeGroupPane> group;
  group.Init(true);
  SetVariable(L"PICKSTYLE", L"3");
  BeginCommand();
  group.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(g_bMakeGroup, 0);
  EXPECT_EQ(Variable(L"PICKSTYLE"), L"2");
  EXPECT_EQ(group.GetIcon(), qvx::PaneIcon(57627));
  EndCommand();
  group.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(Variable(L"PICKSTYLE"), L"3");
  const auto printed = Journal("printed");
  ASSERT_EQ(printed.size(), 2u);
  EXPECT_EQ(printed[0], "<编组关闭>");
  EXPECT_EQ(printed[1], "<编组启动>");
}

TEST_F(SwitchPanes, ADoubleClickTogglesTwice) {
  Probe<TDynDimPane> dynDim;
  dynDim.OnLButtonDown(0, kAnywhere);
  dynDim.OnLButtonDblClk(0, kAnywhere);
  EXPECT_EQ(g_bDynamicCoord, 1);
}

TEST_F(SwitchPanes, TheMenuFitsTheStateAndTheEnabledLineToggles) {
  Probe<TDynDimPane> dynDim;
  dynDim.choice = 40216;
  dynDim.OnRButtonDown(0, kAnywhere);
  EXPECT_EQ(dynDim.lines, (std::vector<MenuLine>{{L"开(&O)", 40215, true, true},
                                                 {L"关(&F)", 40216, false, false}}));
  EXPECT_EQ(g_bDynamicCoord, 0);
  EXPECT_EQ(dynDim.GetStyle(), 2);
  dynDim.choice = 40215;
  dynDim.OnRButtonDown(0, kAnywhere);
  EXPECT_EQ(dynDim.lines, (std::vector<MenuLine>{{L"开(&O)", 40215, false, false},
                                                 {L"关(&F)", 40216, true, true}}));
  EXPECT_EQ(g_bDynamicCoord, 1);
  EXPECT_EQ(dynDim.GetStyle(), 8);
}

TEST_F(SwitchPanes, CancellingTheMenuChangesNothing) {
  Probe<TaKhsKsj123> fill;
  fill.OnRButtonDown(0, kAnywhere);
  EXPECT_EQ(fill.lines.size(), 4u);
  EXPECT_TRUE(fill.IsOn());
  EXPECT_TRUE(Journal("sent").empty());
}

TEST_F(SwitchPanes, EachMenuIsDestroyedAfterItsChoice) {
  Probe<TaKhsKsj123> fill;
  for (int i = 0; i < 1000; ++i) {
    fill.choice = i % 3 ? 0 : 40215;
    fill.OnRButtonDown(0, kAnywhere);
    ASSERT_NE(fill.shown, nullptr);
    ASSERT_FALSE(::IsMenu(fill.shown)) << i;
  }
}

TEST_F(SwitchPanes, TheSettingsOfFillAndBoldOpenTheOptionsAtTheirPage) {
  TRegProperty key(GetRegLocation(), L"Settings\\ScreenMenu");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  for (const bool bold : {false, true}) {
    key.SetValue(L"PaneCallOption", 0);
    Probe<TaKhsKsj123> fill;
    Probe<TBoldLinePane> boldLine;
    fill.choice = boldLine.choice = 40217;
    bold ? boldLine.OnRButtonDown(0, kAnywhere) : fill.OnRButtonDown(0, kAnywhere);
    int value = 0;
    key.GetValue(L"PaneCallOption", value);
    EXPECT_EQ(value, 1);
  }
  EXPECT_EQ(Journal("sent"), (std::vector<std::string>{"TOptions\n", "TOptions\n"}));
}

TEST_F(SwitchPanes, ASiblingsPaneOpensTheHostsOptionsByDefault) {
  Probe<OwnPane> own;
  own.choice = 40217;
  own.OnRButtonDown(0, kAnywhere);
  EXPECT_EQ(own.lines.size(), 4u);
  EXPECT_EQ(Journal("sent"), std::vector<std::string>{"_Options\n"});
  devhost::Document* drawing = &Drawing();
  devhost::TheHost().documents.Close(drawing);
  own.OnSetting();
  EXPECT_EQ(Journal("sent").size(), 1u) << "nothing without a drawing";
}

TEST_F(SwitchPanes, ACopyHasHostPartsToolTipAndRefresh) {
  OwnPane pane;
  pane.SetTip(L"tip");
  pane.SetRefresh(true);
  pane.SetText(L"text");
  pane.SetStyle(8);
  const OwnPane copy = pane;
  EXPECT_EQ(ToolTip(copy), L"tip");
  EXPECT_TRUE(copy.Refreshes());
  EXPECT_EQ(copy.GetStyle(), 8);
  OwnPane other;
  EXPECT_FALSE(other.Refreshes());
  other = pane;
  EXPECT_EQ(ToolTip(other), L"tip");
  EXPECT_TRUE(other.Refreshes());
  CString text;
  other.GetText(text);
  EXPECT_STREQ(text.GetString(), L"text");
}

TEST_F(SwitchPanes, AClickRefreshesTheScreenMenuOnlyForPanesWithTheFlag) {
  g_refreshed = 0;
  SetPaneMenuRefresh([] { ++g_refreshed; });
  OwnPane pane;
  pane.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(g_refreshed, 0);
  pane.SetRefresh(true);
  pane.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(g_refreshed, 1);
  SetPaneMenuRefresh(nullptr);
  pane.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(pane.toggles, 3);
}

TEST_F(SwitchPanes, AreOffWithoutADrawing) {
  devhost::TheHost().documents.Close(&Drawing());
  TaKhsKsj123 fill;
  TBoldLinePane bold;
  TBaseLinePane base;
  EXPECT_FALSE(fill.IsOn());
  EXPECT_FALSE(bold.IsOn());
  EXPECT_FALSE(base.IsOn());
  fill.OnLButtonDown(0, kAnywhere);
  base.OnLButtonDown(0, kAnywhere);
  EXPECT_FALSE(fill.IsOn());
}

TEST_F(SwitchPanes, UpdateShowsAStateThatWasChangedByOtherMeans) {
  for (const qvx::SwitchPane pane : {qvx::SwitchPane::kMakeGroup, qvx::SwitchPane::kDynDim,
                                     qvx::SwitchPane::kFill, qvx::SwitchPane::kBaseLine})
    InitStatusPane(pane, true);
  g_bMakeGroup = g_bDynamicCoord = 0;
  SolidFillOff();
  ToggleWallBase();
  UpdateStatusPanes();
  const auto shown = ShownPanes();
  ASSERT_EQ(shown.size(), 4u);
  EXPECT_STREQ(shown[0].name, "TMakeGroupPane");
  EXPECT_EQ(shown[0].icon, 57627);
  EXPECT_EQ(shown[0].style, 2);
  EXPECT_EQ(shown[1].icon, 57629);
  EXPECT_EQ(shown[2].icon, 57635);
  EXPECT_EQ(shown[2].style, 2);
  EXPECT_EQ(shown[3].icon, 57632);
  EXPECT_EQ(shown[3].style, 8);
}

TEST_F(SwitchPanes, FollowTheDrawingThatIsRefreshed) {
  devhost::Document* first = &Drawing();
  InitStatusPane(qvx::SwitchPane::kFill, true);
  InitStatusPane(qvx::SwitchPane::kDynDim, true);
  SolidFillOff();
  g_bDynamicCoord = 1;
  NewDrawing();
  RefreshDrawingPanes();
  EXPECT_EQ(ShownPanes()[0].style, 8);
  EXPECT_EQ(ShownPanes()[0].icon, 57636);
  EXPECT_EQ(ShownPanes()[1].icon, 57629) << "no switch of the drawing, left alone";
  devhost::TheHost().documents.Activate(first);
  RefreshDrawingPanes();
  EXPECT_EQ(ShownPanes()[0].style, 2);
  EXPECT_EQ(ShownPanes()[0].icon, 57635);
}

TEST_F(SwitchPanes, DynamicInputIsATextPaneOnOldHosts) {
  const double release = g_dHostVersion;
  g_dHostVersion = 24.0;
  Probe<TDynPane> dyn;
  dyn.Init(true);
  EXPECT_EQ(Bar().GetPaneCount(), 0);
  g_dHostVersion = 16.1;
  dyn.Init(true);
  EXPECT_EQ(Bar().GetPaneCount(), 1);
  CString text;
  dyn.GetText(text);
  EXPECT_STREQ(text.GetString(), L"DYN");
  EXPECT_EQ(ToolTip(dyn), L"启动/关闭 动态输入");
  EXPECT_EQ(dyn.GetIcon(), nullptr);
  dyn.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(QvxGeLib::g_bDynInput, 0);
  EXPECT_EQ(dyn.GetStyle(), 2);
  dyn.OnLButtonDown(0, kAnywhere);
  EXPECT_EQ(Journal("printed"), (std::vector<std::string>{"<动态输入关>", "<动态输入开>"}));
  dyn.Init(false);
  EXPECT_EQ(Bar().GetPaneCount(), 0);
  g_dHostVersion = release;
}

TEST_F(SwitchPanes, AClickOnTheBarReachesThePaneUnderIt) {
  InitStatusPane(qvx::SwitchPane::kDynDim, true);
  InitStatusPane(qvx::SwitchPane::kMakeGroup, true);
  RECT rect{};
  ASSERT_TRUE(Bar().GetRect(&StatusPaneOf(qvx::SwitchPane::kMakeGroup), rect));
  const LPARAM at = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
  ::SendMessageW(Bar().GetWindow(), WM_LBUTTONDOWN, MK_LBUTTON, at);
  EXPECT_EQ(g_bMakeGroup, 0);
  EXPECT_EQ(g_bDynamicCoord, 1);
}

TEST_F(SwitchPanes, TheRealMenuOpensAtThePaneAndIsOperatedByKeys) {
  InitStatusPane(qvx::SwitchPane::kDynDim, true);
  RECT rect{};
  ASSERT_TRUE(Bar().GetRect(&StatusPaneOf(qvx::SwitchPane::kDynDim), rect));
  std::vector<MenuLine> seen;
  const ModalGuest guest([&] {
    HMENU menu = nullptr;
    const HWND window = OpenMenuWindow(&menu);
    if (!window) return false;
    seen = LinesOf(menu);
    ::PostMessageW(Bar().GetWindow(), WM_CHAR, L'f', 0);
    return true;
  });
  ::SendMessageW(Bar().GetWindow(), WM_RBUTTONDOWN, MK_RBUTTON,
                 MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2));
  EXPECT_TRUE(guest.IsDone());
  EXPECT_EQ(seen.size(), 2u);
  EXPECT_EQ(g_bDynamicCoord, 0);
}
