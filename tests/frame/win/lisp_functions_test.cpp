// The module's LISP functions as a drawing calls them, through the real host core. The shell is a
// double that returns what a test sets and records the files to open.
#include "frame/commands/win/lisp_functions.h"

#include "afxwin.h"
#include "devhost/core/lisp/lisp_calls.h"
#include "frame/commands/win/live_menu_commands.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "rxdlinkr.h"
#include "tests/hostcore/host_fixture.h"

namespace {

namespace fs = std::filesystem;

INT_PTR g_answer = 33;
std::vector<std::wstring> g_opened;    // verb and file
std::vector<std::wstring> g_menusSet;  // arguments of TSetMenu

HINSTANCE WINAPI ShellCall(HWND, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters, LPCWSTR folder,
                           INT show) {
  EXPECT_EQ(parameters, nullptr);
  EXPECT_EQ(folder, nullptr);
  EXPECT_EQ(show, SW_SHOWNORMAL);
  g_opened.push_back(std::wstring(verb) + L" " + fs::path(file).make_preferred().wstring());
  return reinterpret_cast<HINSTANCE>(g_answer);
}

int Entry(int message, void* packet) {
  int count = 0;
  const LispRow* rows = LispFunctions(&count);
  if (message == AcRx::kInitAppMsg) acrxUnlockApplication(packet);
  if (message == AcRx::kLoadDwgMsg) DefineLispFunctions(rows, count);
  if (message == AcRx::kInvkSubrMsg) DispatchLisp(rows, count);
  return AcRx::kRetOK;
}

// Program folder FOLDER\Sys\, set-up folder FOLDER\setup.
class LispFunctionsTest : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_answer = 33;
    g_opened.clear();
    g_menusSet.clear();
    g_dHostVersion = 94.1;
    std::wcscpy(QvxGeLib::g_sAppPath, (folder.wstring() + L"\\Sys\\").c_str());
    TRegProperty key(GetRegLocation(), L"");
    key.SetTopRootKey(HKEY_LOCAL_MACHINE);
    key.SetValue(L"SetupLocation", Setup().c_str());
    for (const char* name : {"ShowMe", "FlashTut", "setup/ShowMe"})
      fs::create_directories(folder / name);
    modules.entries[L"frame.arx"] = Entry;
    MakeFile("frame.arx", "");
    m_drawing = &NewDrawing();
    ASSERT_TRUE(acrxLoadModule(L"frame.arx", true));
    ui.printed.clear();
  }
  void TearDown() override {
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, GetRegLocation());
    HostTest::TearDown();
  }
  std::wstring Setup() const { return folder.wstring() + L"\\setup"; }
  std::wstring Opens(const wchar_t* tail) const { return L"open " + folder.wstring() + tail; }

  // The result of the expression, as LISP prints it.
  std::string Call(const wchar_t* expression) {
    std::wstring error;
    const devhost::LispValue value = devhost::Evaluate(*m_drawing, expression, &error);
    EXPECT_EQ(error, L"") << devhost::Utf8(expression);
    return devhost::Utf8(devhost::Printed(value));
  }

  using List = std::vector<std::wstring>;
  devhost::Document* m_drawing = nullptr;
};

}  // namespace

// Replaces the system's shell calls in this program.
extern "C" {
decltype(&ShellCall) __imp_ShellExecuteW = &ShellCall;
}

bool SetMenuFile(const wchar_t* file) {
  g_menusSet.push_back(file ? file : L"(none)");
  return file != nullptr;
}

TEST_F(LispFunctionsTest, TheTutorialIsSearchedAboveTheProgramAndThenInTheSetUpFolder) {
  MakeFile("setup/ShowMe/qvxtut.chm", "");
  EXPECT_EQ(Call(L"(C:QvxTut)"), "nil");
  MakeFile("ShowMe/qvxtut.chm", "");
  Call(L"(C:QvxTut)");
  EXPECT_EQ(g_opened,
            (List{Opens(L"\\setup\\ShowMe\\qvxtut.chm"), Opens(L"\\ShowMe\\qvxtut.chm")}));
  EXPECT_EQ(ui.printed, L"");
}

TEST_F(LispFunctionsTest, AMissingTutorialIsReportedWithItsSecondPlace) {
  EXPECT_EQ(Call(L"(C:QvxTut)"), "nil");
  EXPECT_EQ(ui.printed, L"\n尚未安装有自学教程电子文档" + Setup() + L"\\ShowMe\\qvxtut.chm");
  EXPECT_EQ(g_opened, List{});
}

TEST_F(LispFunctionsTest, ATutorialThatTheShellCannotOpenIsReported) {
  MakeFile("ShowMe/qvxtut.chm", "");
  g_answer = 32;
  Call(L"(C:QvxTut)");
  EXPECT_EQ(ui.printed,
            L"\n帮助文件qvxtut.chm不存在，或您没有安装HTML帮助系统(安装IE 4.0或更高的版本)。");
}

TEST_F(LispFunctionsTest, TheAnimatedTutorialIsSearchedAboveTheProgramOnly) {
  Call(L"(C:TFlashTut)");
  EXPECT_EQ(ui.printed, L"\n尚未安装有Flash教学文档" + folder.wstring() + L"\\FlashTut\\index.htm");
  MakeFile("FlashTut/index.htm", "");
  ui.printed.clear();
  EXPECT_EQ(Call(L"(C:TFlashTut)"), "nil");
  EXPECT_EQ(ui.printed, L"");
  EXPECT_EQ(g_opened, List{Opens(L"\\FlashTut\\index.htm")});
  g_answer = 32;
  Call(L"(C:TFlashTut)");
  EXPECT_EQ(ui.printed, L"\n未能启动Flash教学");
}

TEST_F(LispFunctionsTest, TheQuestionsAreFoundOnTheSupportPath) {
  Call(L"(C:QvxFaq)");
  EXPECT_EQ(ui.printed, L"\n尚未有常见问题文件");
  MakeFile("faq.doc", "");
  ui.printed.clear();
  EXPECT_EQ(Call(L"(C:QvxFaq)"), "nil");
  EXPECT_EQ(ui.printed, L"");
  EXPECT_EQ(g_opened, List{Opens(L"\\faq.doc")});
  g_answer = 31;
  Call(L"(C:QvxFaq)");
  EXPECT_EQ(ui.printed, L"\n无法打开FAQ.DOC!");
}

TEST_F(LispFunctionsTest, AClipGivenWithItsPathIsSearchedByItsFileNameAlone) {
  MakeFile("ShowMe/wall.avi", "");
  MakeFile("other.avi", "");
  EXPECT_EQ(Call(L"(tcmdavi \"C:\\\\elsewhere\\\\wall.txt\")"), "nil");
  EXPECT_EQ(Call(L"(tcmdavi \"wall\")"), "nil");
  EXPECT_EQ(g_opened, (List{Opens(L"\\ShowMe\\wall.avi"), Opens(L"\\ShowMe\\wall.avi")}));
  EXPECT_EQ(ui.printed, L"");
  EXPECT_EQ(Call(L"(tcmdavi \"other\")"), "nil");
  EXPECT_EQ(ui.printed, L"\n没有找到相应的AVI文件！") << "the support path has no clips";
}

TEST_F(LispFunctionsTest, AClipOfTheSetUpFolderComesSecond) {
  MakeFile("setup/ShowMe/door.avi", "");
  Call(L"(tcmdavi \"door\")");
  EXPECT_EQ(g_opened, List{Opens(L"\\setup\\ShowMe\\door.avi")});
}

TEST_F(LispFunctionsTest, AClipThatTheShellCannotOpenIsReported) {
  MakeFile("ShowMe/wall.avi", "");
  g_answer = 32;
  Call(L"(tcmdavi \"wall\")");
  EXPECT_EQ(ui.printed, L"\n您没有AVI的播放程序。");
}

TEST_F(LispFunctionsTest, ANumberNoArgumentOrNoNamePlaysNothingAndReturnsNil) {
  MakeFile("ShowMe/.avi", "");
  for (const wchar_t* call : {L"(tcmdavi 5)", L"(tcmdavi)", L"(tcmdavi \"\")",
                              L"(tcmdavi \"C:\\\\folder\\\\\")", L"(tcmdavi 5 \"wall\")"})
    EXPECT_EQ(Call(call), "nil");
  EXPECT_EQ(g_opened, List{});
  EXPECT_EQ(ui.printed, L"");
}

TEST_F(LispFunctionsTest, TheMenuIsPassedAsOneText) {
  EXPECT_EQ(Call(L"(TSetMenu \"simple.qmn\")"), "nil");
  EXPECT_EQ(Call(L"(TSetMenu 5)"), "nil");
  EXPECT_EQ(Call(L"(TSetMenu)"), "nil");
  EXPECT_EQ(g_menusSet, (List{L"simple.qmn", L"(none)", L"(none)"}));
}

TEST_F(LispFunctionsTest, EchoAndBlipsAreRestoredAfterEachCall) {
  host.variables.Set(L"CMDECHO", L"1");
  host.variables.Set(L"BLIPMODE", L"1");
  const int before = devhost::TheJournal().Count();
  Call(L"(C:QvxFaq)");
  std::string written;
  for (const auto& entry : devhost::TheJournal().Since(before))
    if (entry.event == "var") written += entry.fields.dump();
  EXPECT_EQ(written,
            "{\"name\":\"CMDECHO\",\"value\":\"0\"}{\"name\":\"BLIPMODE\",\"value\":\"0\"}"
            "{\"name\":\"BLIPMODE\",\"value\":\"1\"}{\"name\":\"CMDECHO\",\"value\":\"1\"}");
}
