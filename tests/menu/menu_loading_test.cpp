// Menu loading: the search for the menu file, compiling and loading with the printed texts, and the
// tool bar block.
#include <gtest/gtest.h>

#include <map>

#include "menu/menu_loading.h"
#include "tests/menu/menu_testing.h"

namespace {

const char kSource[] =
    "MENU_TITLE = \"t\"\n***SCREEN\n[a]x;\n***ToolBar\n[b]\n***SWITCH\n***RESOURCE\n";

struct Shell : MenuUsers, MenuFiles, MenuPrinter {
  TMenuSystem* CurrentSystem() override { return hasWindow ? &system : nullptr; }
  void AttachScreenBar(TMenuSystem& given) override {
    events += "screen(" + std::to_string(given.Length()) + ") ";
  }
  void AttachToolBar(TMenuSystem& given) override {
    events += "toolbar(" + std::to_string(given.Length()) + ") ";
  }
  bool FindFile(const wchar_t* name, wchar_t* out) override {
    asked += Utf8(name) + " ";
    const auto found = files.find(name);
    if (found == files.end()) return false;
    found->second.copy(out, kPathUnits - 1);
    out[found->second.size()] = 0;
    return true;
  }
  bool ReadMenuSetting(wchar_t* out) override {
    if (setting.empty()) return false;
    setting.copy(out, kPathUnits - 1);
    out[setting.size()] = 0;
    return true;
  }
  int MenuType() override { return type; }
  void TempFolder(wchar_t* out) override {
    temp.copy(out, kPathUnits - 1);
    out[temp.size()] = 0;
  }
  void Print(const wchar_t* text) override { printed += Utf8(text); }

  TMenuSystem system;
  bool hasWindow = true;
  int type = 0;
  std::map<std::wstring, std::wstring> files;
  std::wstring setting, temp = TempPath(L"");
  std::string asked, events, printed;
};

struct MenuLoadingTest : testing::Test {
  ~MenuLoadingTest() override {
    DeleteFileAt(source);
    DeleteFileAt(compiled);
    DeleteFileAt(echo);
  }
  std::string Find(bool (MenuLoading::*search)(wchar_t*)) {
    wchar_t out[MenuLoading::kPathUnits] = L"";
    return (loading.*search)(out) ? Utf8(out) : "<none>";
  }
  const std::wstring source = TempPath(L"load.qmn");
  const std::wstring compiled = TempPath(L"load.qmc");
  const std::wstring echo = TempPath(L"qmn.out");
  Shell shell;
  CollectedBoxes boxes;
  MenuLoading loading{shell, shell, shell, boxes};
};

TEST_F(MenuLoadingTest, TheMenuSettingNamesTheBaseAndTheSourceComesFirst) {
  shell.setting = L"C:\\m\\my.old";
  shell.files[L"C:\\m\\my.qmc"] = L"C:\\m\\my.qmc";
  EXPECT_EQ(Find(&MenuLoading::FindMenuBase), "C:\\m\\my");
  EXPECT_EQ(shell.asked, "C:\\m\\my.qmn C:\\m\\my.qmc ");
}

TEST_F(MenuLoadingTest, AMissingMenuFallsBackToTheDefaultSourceThenToItsCompiledFile) {
  shell.setting = L"gone";
  EXPECT_EQ(Find(&MenuLoading::FindMenuBase), "<none>");
  EXPECT_EQ(shell.asked, "gone.qmn gone.qmc qvx.qmn qvx.qmc ");
  shell.files[L"qvx.qmc"] = L"D:\\sup\\qvx.qmc";
  EXPECT_EQ(Find(&MenuLoading::FindMenuBase), "D:\\sup\\qvx");
  shell.files[L"qvx.qmn"] = L"E:\\x\\qvx.qmn";
  EXPECT_EQ(Find(&MenuLoading::FindMenuBase), "E:\\x\\qvx");
}

TEST_F(MenuLoadingTest, WithoutASettingTheDefaultIsLookedFor) {
  Find(&MenuLoading::FindMenuBase);
  EXPECT_EQ(shell.asked, "qvx.qmn qvx.qmc ");
}

TEST_F(MenuLoadingTest, TheDefaultFollowsTheMenuType) {
  shell.files = {{L"simple.qmn", L"C:\\a\\simple.qmn"},
                 {L"qvx2d.qmn", L"C:\\a\\qvx2d.qmn"},
                 {L"qvx.qmn", L"C:\\a\\qvx.qmn"}};
  shell.type = 1;
  EXPECT_EQ(Find(&MenuLoading::DefaultMenuBase), "C:\\a\\simple");
  shell.type = 2;
  EXPECT_EQ(Find(&MenuLoading::DefaultMenuBase), "C:\\a\\qvx2d");
  for (int type : {0, 3, -1}) {
    shell.type = type;
    EXPECT_EQ(Find(&MenuLoading::DefaultMenuBase), "C:\\a\\qvx");
  }
}

TEST_F(MenuLoadingTest, CompilingPrintsThePathFillsTheSystemWritesTheFileAndHandsOver) {
  WriteFile(source, kSource);
  loading.CompileMenu(source.c_str());
  EXPECT_EQ(shell.printed, "\n加载奇维菜单文件: " + Utf8(source.c_str()));
  EXPECT_EQ(shell.events, "screen(2) toolbar(2) ");
  EXPECT_EQ(ReadFile(compiled), SaveBytes(shell.system));
  EXPECT_TRUE(boxes.all.empty());
}

TEST_F(MenuLoadingTest, TheEchoOfSkippedBytesIsLeftInTheTemporaryFile) {
  WriteFile(source, "; ?" + std::string(kSource));
  loading.CompileMenu(source.c_str());
  EXPECT_EQ(ReadFile(echo).substr(0, 2), ";?");
}

TEST_F(MenuLoadingTest, ASyntaxErrorIsPrintedAndTheEmptySystemIsWrittenAndHandedOver) {
  WriteFile(source, "MENU_TITLE = \"t\"\n***SCREEN\n***X\n");
  shell.system.Append(new TMenuBar);
  loading.CompileMenu(source.c_str());
  EXPECT_EQ(shell.printed,
            "\n加载奇维菜单文件: " + Utf8(source.c_str()) + " \n语法错误，第3行: syntax error");
  EXPECT_EQ(shell.events, "screen(0) toolbar(0) ");
  TMenuSystem empty;
  EXPECT_EQ(ReadFile(compiled), SaveBytes(empty));
}

TEST_F(MenuLoadingTest, AMissingSourceIsReportedAndNothingElseHappens) {
  loading.CompileMenu(source.c_str());
  EXPECT_EQ(shell.printed, "\nCould not open file " + Utf8(source.c_str()));
  EXPECT_EQ(shell.events, "");
  EXPECT_EQ(ReadFile(compiled), "<missing>");
}

TEST_F(MenuLoadingTest, ATemporaryFileThatCannotBeCreatedIsReported) {
  WriteFile(source, kSource);
  shell.temp = TempPath(L"missing") + L"/";
  loading.CompileMenu(source.c_str());
  EXPECT_EQ(shell.printed,
            "\nCould not create temperary file " + Utf8(shell.temp.c_str()) + "qmn.out");
  EXPECT_EQ(shell.events, "");
}

TEST_F(MenuLoadingTest, WithoutAContextWindowNothingHappens) {
  shell.hasWindow = false;
  WriteFile(source, kSource);
  loading.CompileMenu(source.c_str());
  loading.LoadCompiledMenu(source.c_str());
  EXPECT_EQ(shell.printed + shell.events, "");
}

TEST_F(MenuLoadingTest, ACompiledFileIsLoadedWithoutTouchingTheSource) {
  WriteFile(source, kSource);
  loading.CompileMenu(source.c_str());
  const std::string tree = DumpTree(shell.system);
  WriteFile(source, "changed");
  shell.system.EmptyLists();
  shell.printed = shell.events = "";
  loading.LoadCompiledMenu(compiled.c_str());
  EXPECT_EQ(shell.printed, "\n加载奇维菜单文件: " + Utf8(compiled.c_str()));
  EXPECT_EQ(shell.events, "screen(2) toolbar(2) ");
  EXPECT_EQ(DumpTree(shell.system), tree);
  EXPECT_EQ(ReadFile(source), "changed");
}

TEST_F(MenuLoadingTest, ABrokenCompiledFileShowsABoxAndIsHandedOverAllTheSame) {
  WriteFile(compiled, "junk");
  loading.LoadCompiledMenu(compiled.c_str());
  EXPECT_EQ(boxes.all.size(), 1u);
  EXPECT_EQ(shell.events, "screen(0) toolbar(0) ");
}

// ---- the tool bar block

std::string ToolBarOf(const std::vector<const wchar_t*>& labels, const wchar_t* name = L"toolbar") {
  TMenuSystem system;
  system.Append(new TMenuBar);
  system.Append(new TMenuBar);
  system.At(1)->m_strName = name;
  for (const wchar_t* label : labels) system.At(1)->Append(new TMenuItem(label, L""));
  TMenuBar* bar = PrepareToolBar(system);
  if (!bar) return "<none>";
  EXPECT_EQ(bar, system.At(1));
  std::string text;
  for (TMenuItem* item : *bar) text += Utf8(item->m_strLabel) + " ";
  return text;
}

TEST(ToolBarBlock, EachSeparatorMovesOnePlaceDown) {
  EXPECT_EQ(ToolBarOf({L"a", L"--", L"b", L"c", L"--", L"d"}), "a b -- c d -- ");
  EXPECT_EQ(ToolBarOf({L"--", L"--", L"a"}), "-- -- a ");
  EXPECT_EQ(ToolBarOf({L"--", L"a", L"--", L"b"}), "a -- b -- ");
}

TEST(ToolBarBlock, ASeparatorAtTheEndStays) { EXPECT_EQ(ToolBarOf({L"a", L"--"}), "a -- "); }

TEST(ToolBarBlock, ItsNameIsFoundInAnyCaseAndMayBeMissing) {
  EXPECT_EQ(ToolBarOf({L"a"}, L"TOOLBAR"), "a ");
  EXPECT_EQ(ToolBarOf({L"a"}, L"Tool"), "<none>");
}

}  // namespace
