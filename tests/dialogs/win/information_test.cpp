// The about dialog as a real window, and the shell calls of help and mail. The shell is a double:
// it returns what a test sets and records its arguments.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "dialogs/win/about_dialog.h"
#include "dialogs/win/information_commands.h"
#include "resources/resource_ids.h"
#include "tests/doubles/silent_ui.h"

namespace {

namespace fs = std::filesystem;

struct ShellDouble {
  INT_PTR answer = 33;
  int calls = 0;
  std::wstring verb, file;
  HWND owner = nullptr;
  int show = -1;
};
ShellDouble g_shell;

HINSTANCE WINAPI ShellCall(HWND owner, LPCWSTR verb, LPCWSTR file, LPCWSTR, LPCWSTR, INT show) {
  ++g_shell.calls;
  g_shell.owner = owner;
  g_shell.verb = verb;
  g_shell.file = file;
  g_shell.show = show;
  return reinterpret_cast<HINSTANCE>(g_shell.answer);
}

class AboutWindow : public CAboutVexraDlg {
 public:
  AboutWindow() : CAboutVexraDlg(nullptr) { Create(IDD_ABOUT, nullptr); }
  ~AboutWindow() override { DestroyWindow(); }
  std::wstring Text(int id) {
    CString text;
    GetDlgItem(id)->GetWindowText(text);
    return text.GetString();
  }
  CString LinkOf(int id) { return dynamic_cast<CHyperLink*>(GetDlgItem(id))->GetURL(); }
  bool HasLabel(const wchar_t* text) {
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
      wchar_t label[64] = L"";
      ::GetWindowTextW(child, label, 64);
      if (!std::wcscmp(label, text)) return true;
    }
    return false;
  }
};

class Information : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_folder = fs::temp_directory_path() / "qvx_information_test";
    fs::create_directories(s_folder);
    devhost::HostOptions options;
    options.supportPath = {s_folder.wstring()};
    devhost::TheHost().Begin(options, &s_ui, nullptr);
  }
  static void TearDownTestSuite() {
    devhost::TheHost().End();
    fs::remove_all(s_folder);
  }
  void SetUp() override {
    g_shell = ShellDouble();
    s_ui.printed.clear();
  }
  void TearDown() override { fs::remove(s_folder / "qvx.ini"); }
  static void Product(const std::string& bytes) { Write("qvx.ini", bytes); }
  static void Write(const char* name, const std::string& bytes) {
    std::ofstream(s_folder / name, std::ios::binary) << bytes;
  }
  inline static fs::path s_folder;
  inline static SilentUi s_ui;
};

}  // namespace

// Replaces the system's shell calls in this program.
extern "C" {
decltype(&ShellCall) __imp_ShellExecuteW = &ShellCall;
}

TEST_F(Information, AboutShowsWhatTheProductFileSays) {
  Product(
      "[Product]\nAbout=A product\nNewVersion=8.1\nSubVer=77\nEmail=me@here.example\n"
      "QQ\xC8\xBA=4711\n");
  AboutWindow dialog;
  CString title;
  dialog.GetWindowText(title);
  EXPECT_STREQ(title, L"产品版本信息");
  EXPECT_EQ(dialog.Text(5020), L"A product");
  EXPECT_EQ(dialog.Text(1153), L"4711");
  EXPECT_EQ(dialog.Text(5076), L"8.1");
  EXPECT_EQ(dialog.Text(1152), L"77");
  EXPECT_EQ(dialog.Text(5016), L"me@here.example");
  EXPECT_TRUE(dialog.GetDlgItem(1153)->GetStyle() & ES_READONLY);
}

TEST_F(Information, TheLinksOpenTheirTextAndAMail) {
  Product("[Product]\nEmail=me@here.example\n");
  AboutWindow dialog;
  EXPECT_EQ(dialog.LinkOf(5018), dialog.Text(5018).c_str());
  EXPECT_STREQ(dialog.LinkOf(5016), L"mailto:me@here.example");
}

TEST_F(Information, AboutHasItsLabelsAndWithoutAProductFileTheMakersAddresses) {
  AboutWindow dialog;
  for (const wchar_t* label :
       {L"版本：", L"网址：", L"邮件：", L"电话：", L"传真：", L"版权所有：", L"QQ群：", L"关闭"})
    EXPECT_TRUE(dialog.HasLabel(label)) << label;
  EXPECT_EQ(dialog.Text(5020), L"");
  EXPECT_EQ(dialog.Text(5076), L"");
  EXPECT_EQ(dialog.Text(1153), qvx::kChatGroup);
  EXPECT_EQ(dialog.Text(5016), qvx::kContactAddress);
}

TEST_F(Information, AnIconFileOfRandomBytesIsNoIcon) {
  Write("a.ico", "\x01\x02 not an icon \xFF");
  Product("[Product]\nIconFile=a.ico\n");
  const int before = qvx::OwnedIcon::Alive();
  AboutWindow dialog;
  EXPECT_EQ(qvx::OwnedIcon::Alive(), before);
  EXPECT_EQ(::SendDlgItemMessageW(dialog.m_hWnd, 1154, STM_GETICON, 0, 0), 0);
}

TEST_F(Information, AboutLeaksNoHandle) {
  const int before = qvx::OwnedIcon::Alive();
  for (int round = 0; round < 100; ++round) const AboutWindow dialog;
  EXPECT_EQ(qvx::OwnedIcon::Alive(), before);
}

TEST_F(Information, HelpOpensTheFileThatTheProductNames) {
  Write("a.chm", "help");
  Product("[Product]\nHelpFile=a.chm\n");
  OpenHelp();
  EXPECT_EQ(g_shell.verb, L"open");
  EXPECT_EQ(fs::path(g_shell.file), s_folder / "a.chm");
  EXPECT_EQ(g_shell.show, SW_SHOWNORMAL);
  EXPECT_EQ(s_ui.printed, L"");
}

TEST_F(Information, AMissingHelpFileIsNotOpened) {
  for (const char* content : {"[Product]\n", "[Product]\nHelpFile=no.chm\n"}) {
    Product(content);
    s_ui.printed.clear();
    OpenHelp();
    EXPECT_EQ(s_ui.printed, L"\n未找到帮助文件Vexra.chm！") << content;
  }
  EXPECT_EQ(g_shell.calls, 0);
}

TEST_F(Information, HelpWithoutAProductIsOpenedWithAnEmptyPath) {
  g_shell.answer = 2;
  OpenHelp();
  EXPECT_EQ(g_shell.calls, 1);
  EXPECT_EQ(g_shell.file, L"");
  EXPECT_EQ(s_ui.printed, L"\n帮助文件不存在，或您没有安装HTML帮助系统(安装IE 4.0或更高的版本)。");
}

TEST_F(Information, TheShellsResultsUpTo32AreErrors) {
  for (const INT_PTR answer : {31, 32, 33, 42}) {
    g_shell.answer = answer;
    s_ui.printed.clear();
    ReportBug();
    EXPECT_EQ(s_ui.printed.empty(), answer > 32) << answer;
    s_ui.printed.clear();
    OpenHelp();
    EXPECT_EQ(s_ui.printed.empty(), answer > 32) << answer;
  }
}

TEST_F(Information, AnAddressThatIsTooLongForTheShellIsPrintedAndNotOpened) {
  const std::string scheme = "mailto:";
  for (const std::size_t length : {2083u - 7u, 2084u - 7u}) {
    const std::string address = std::string(length - 2, 'a') + "@b";
    Product("[Product]\nEmail=" + address + "\n");
    g_shell.file.clear();
    s_ui.printed.clear();
    ReportBug();
    const bool opened = length + scheme.size() <= 2083;
    EXPECT_EQ(g_shell.file.size(), opened ? 2083u : 0u) << length;
    const std::wstring wide(address.begin(), address.end());
    EXPECT_EQ(
        s_ui.printed,
        opened ? L""
               : L"\n需要安装配置一个发送邮件软件（如Microsoft Outlook)!您可以将问题报告发送到:" +
                     wide)
        << length;
  }
}

TEST_F(Information, AReportIsAMailToTheContactAddress) {
  ReportBug();
  EXPECT_EQ(g_shell.verb, L"open");
  EXPECT_EQ(g_shell.file, std::wstring(L"mailto:") + qvx::kContactAddress);
  EXPECT_EQ(g_shell.owner, nullptr);
  Product("[Product]\nEmail=me@here.example\n");
  g_shell.answer = 31;
  ReportBug();
  EXPECT_EQ(g_shell.file, L"mailto:me@here.example");
  EXPECT_EQ(s_ui.printed,
            L"\n需要安装配置一个发送邮件软件（如Microsoft Outlook)!您可以将问题报告发送到:"
            L"me@here.example");
}
