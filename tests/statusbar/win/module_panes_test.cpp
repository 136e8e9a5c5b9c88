// The panes of the real module on the host's bar: which ones, in which order, by which custom
// flags; how they follow drawings and sibling modules; that none is left after unload.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "afxext.h"

#include "acstatusbar.h"
#include "devhost/core/host/host.h"
#include "rxregsvc.h"
#include "tests/module/win/host_process.h"

namespace {

using Json = nlohmann::json;
using Names = std::vector<std::string>;

template <class Function>
Function Export(const wchar_t* file, const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(file), name)));
}

// Writes a setting where the kernel of the host's default release keeps it.
void Keep(const wchar_t* setting, DWORD value) {
  ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Quivera\\QVX\\R24.0\\QVX-1\\Settings", setting,
                    REG_DWORD, &value, sizeof value);
}

constexpr DWORD kNoTips = 0x02;

class ModulePanes : public ::testing::Test {
 protected:
  void SetUp() override {
    HostProcess::Get();
    for (const wchar_t* setting : {L"g_bMakeGroup", L"g_bDynamicCoord"}) Keep(setting, 1);
  }
  void TearDown() override {
    Unload();
    Keep(L"g_nCustomFlag", kNoTips);
    auto& documents = devhost::TheHost().documents;
    while (documents.Current()) documents.Close(documents.Current());
  }
  static void Load(DWORD flags = 0) {
    Keep(L"g_nCustomFlag", kNoTips | flags);
    ASSERT_TRUE(acrxLoadModule(L"qvx_initstart.arx", true));
  }
  static void Unload() { acrxUnloadModule(L"qvx_initstart.arx"); }
  static int OnBar() { return acedGetApplicationStatusBar()->GetPaneCount(); }
  static Json Panes() {
    return Json::parse(Export<const char* (*)()>(L"qvx_initstart.arx", "QvxDescribeShell")())
        .at("panes");
  }
  static Json PaneOf(const char* name) {
    for (const Json& pane : Panes())
      if (pane["name"] == name) return pane;
    return {};
  }
  static Names NamesOnBar() {
    Names names;
    for (const Json& pane : Panes()) names.push_back(pane["name"]);
    return names;
  }
  static void Click(const char* name) {
    const Json rect = PaneOf(name).at("rect");
    POINT at = {(rect[0].get<int>() + rect[2].get<int>()) / 2,
                (rect[1].get<int>() + rect[3].get<int>()) / 2};
    const HWND bar = acedGetApplicationStatusBar()->GetWindow();
    ::ScreenToClient(bar, &at);
    ::SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
  }
  static std::wstring Variable(const wchar_t* name) {
    std::wstring value;
    devhost::TheHost().variables.Get(name, &value);
    return value;
  }
};

}  // namespace

TEST_F(ModulePanes, AreInTheirOrderAndAllRemovedAfterwards) {
  Load();
  EXPECT_EQ(NamesOnBar(), (Names{"TPScalePane", "TMakeGroupPane", "TBaseLinePane", "TaKhsKsj123",
                                 "TBoldLinePane", "TDynDimPane"}));
  Unload();
  EXPECT_EQ(OnBar(), 0);
}

TEST_F(ModulePanes, TheFlagOfTheDrawingPanesLeavesThemOutAndUnloadStillWorks) {
  Load(0x20);
  EXPECT_EQ(NamesOnBar(), (Names{"TPScalePane", "TMakeGroupPane"}));
  Unload();
  EXPECT_EQ(OnBar(), 0);
}

TEST_F(ModulePanes, TheFlagOfTheScalePaneLeavesItOut) {
  Load(0x01);
  EXPECT_EQ(NamesOnBar().front(), "TMakeGroupPane");
  EXPECT_EQ(OnBar(), 5);
  Unload();
  Load(0x21);
  EXPECT_EQ(NamesOnBar(), Names{"TMakeGroupPane"});
  Unload();
  EXPECT_EQ(OnBar(), 0);
}

TEST_F(ModulePanes, PanesOfOthersStayAndOnlyTheScaleIsInsertedBeforeThem) {
  AcPane others;
  acedGetApplicationStatusBar()->Add(&others, TRUE);
  Load();
  EXPECT_EQ(acedGetApplicationStatusBar()->GetIndex(&others), 1);
  EXPECT_EQ(NamesOnBar()[1], "");
  Unload();
  EXPECT_EQ(OnBar(), 1);
  acedGetApplicationStatusBar()->Remove(&others, TRUE);
}

TEST_F(ModulePanes, AreAddedAndRemovedRepeatedly) {
  for (int round = 0; round < 10; ++round) {
    Load();
    EXPECT_EQ(OnBar(), 6) << round;
    Unload();
    EXPECT_EQ(OnBar(), 0) << round;
  }
}

TEST_F(ModulePanes, PickStyleIsUpdatedAtLoadAndAtUnload) {
  devhost::TheHost().variables.Set(L"PICKSTYLE", L"2");
  Load();
  EXPECT_EQ(Variable(L"PICKSTYLE"), L"3");
  devhost::TheHost().variables.Set(L"PICKSTYLE", L"0");
  Unload();
  EXPECT_EQ(Variable(L"PICKSTYLE"), L"1");
}

TEST_F(ModulePanes, ASiblingRefreshesThemAfterItToggledASwitch) {
  Load();
  devhost::TheHost().documents.New();
  EXPECT_EQ(PaneOf("TDynDimPane")["style"], 8);
  Export<int (*)(const wchar_t*, const wchar_t*)>(L"qvx_kernal.arx", "QvxSetSetting")(
      L"g_bDynamicCoord", L"0");
  EXPECT_EQ(PaneOf("TDynDimPane")["style"], 8) << "nobody told it";
  Export<void (*)()>(L"qvx_initstart.arx", "UpdateStatusBar")();
  EXPECT_EQ(PaneOf("TDynDimPane")["style"], 2);
  EXPECT_EQ(PaneOf("TDynDimPane")["icon"], 57629);
  EXPECT_EQ(PaneOf("TaKhsKsj123")["icon"], 57636) << "the icon of the state now";
}

TEST_F(ModulePanes, FollowTheActiveDrawingWithTheHatchScale) {
  Load();
  auto& documents = devhost::TheHost().documents;
  devhost::Document* first = documents.New();
  Click("TaKhsKsj123");
  Click("TBaseLinePane");
  EXPECT_EQ(PaneOf("TaKhsKsj123")["style"], 2);
  EXPECT_EQ(PaneOf("TBaseLinePane")["style"], 8);
  devhost::TheHost().variables.Set(L"HPSCALE", L"7");
  documents.New();
  EXPECT_EQ(std::stod(Variable(L"HPSCALE")), 100);
  EXPECT_EQ(PaneOf("TaKhsKsj123")["style"], 8);
  EXPECT_EQ(PaneOf("TaKhsKsj123")["icon"], 57636);
  EXPECT_EQ(PaneOf("TBaseLinePane")["icon"], 57631);
  documents.Activate(first);
  EXPECT_EQ(PaneOf("TaKhsKsj123")["style"], 2);
  EXPECT_EQ(PaneOf("TaKhsKsj123")["icon"], 57635);
  EXPECT_EQ(PaneOf("TBaseLinePane")["icon"], 57632);
}

TEST_F(ModulePanes, TheBaseOfASiblingsPanesIsExportedWithCopyAndAssignment) {
  Load();
  for (const char* member :
       {"_ZN13CADStatusPaneC2Ev", "_ZN13CADStatusPaneC2ERKS_", "_ZN13CADStatusPaneaSERKS_",
        "_ZN13CADStatusPaneD2Ev", "_ZN13CADStatusPane4InitEb", "_ZN13CADStatusPane5CheckEb",
        "_ZN13CADStatusPane9OnSettingEv", "_ZTV13CADStatusPane"})
    EXPECT_NE(::GetProcAddress(::GetModuleHandleW(L"qvx_initstart.arx"), member), nullptr)
        << member;
}

TEST_F(ModulePanes, ASiblingsOwnPaneWorksAcrossTheModules) {
  Load();
  ASSERT_TRUE(acrxLoadModule(L"sibling_pane.arx", true));
  EXPECT_EQ(OnBar(), 7);
  EXPECT_EQ(Panes()[6]["tooltip"], "sibling");
  EXPECT_EQ(Panes()[6]["style"], 2);
  Click("");
  EXPECT_EQ(Panes()[6]["style"], 8);
  EXPECT_TRUE(acrxUnloadModule(L"sibling_pane.arx"));
  EXPECT_EQ(OnBar(), 6);
}
