// The tip dialog as a real window: its controls, the effect of the buttons, what each way of
// closing saves, and its pictures at several screen resolutions.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "dialogs/win/day_tip_dialog.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "resources/resource_ids.h"
#include "tests/doubles/silent_ui.h"
#include "tests/doubles/win/screen_dots.h"

namespace {

namespace fs = std::filesystem;

constexpr wchar_t kExpectedDots[] = L"QVX_EXPECTED_DOTS";

TRegProperty Key() {
  TRegProperty key(GetRegLocation(), L"Tips");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  return key;
}

int Kept(const wchar_t* name) {
  int value = -99;
  Key().GetValue(name, value);
  return value;
}

class TipWindow : public CDayTipDlg {
 public:
  TipWindow() : CDayTipDlg(nullptr) { Create(IDD_DAY_TIP, nullptr); }
  ~TipWindow() override { DestroyWindow(); }
  void Press(int id) {
    SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                reinterpret_cast<LPARAM>(GetDlgItem(id)->m_hWnd));
  }
  std::wstring Text(int id) {
    CString text;
    GetDlgItem(id)->GetWindowText(text);
    return text.GetString();
  }
  bool Enabled(int id) { return GetDlgItem(id)->IsWindowEnabled() != FALSE; }
  bool Checked() { return ::IsDlgButtonChecked(m_hWnd, IDC_TIP_AT_START) == BST_CHECKED; }
  void Check(bool on) { ::CheckDlgButton(m_hWnd, IDC_TIP_AT_START, on); }
  CSize Picture(int id) {
    const auto bitmap =
        reinterpret_cast<HBITMAP>(::SendDlgItemMessageW(m_hWnd, id, STM_GETIMAGE, IMAGE_BITMAP, 0));
    BITMAP about{};
    ::GetObjectW(bitmap, sizeof about, &about);
    return {about.bmWidth, about.bmHeight};
  }
};

class TipDialog : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_folder = fs::temp_directory_path() / "qvx_tip_dialog_test";
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
    m_release = g_dHostVersion;
    g_dHostVersion = 98.2;  // does not exist
    std::ofstream(s_folder / "qvxtips.txt", std::ios::binary) << "one\r\ntwo & two\r\nsix\r\n";
    Key().SetValue(L"StartUp", 1);
    Key().SetValue(L"Indicator", 0);
  }
  void TearDown() override {
    fs::remove(s_folder / "qvxtips.txt");
    g_dHostVersion = m_release;
  }
  inline static fs::path s_folder;
  inline static SilentUi s_ui;

 private:
  double m_release = 0;
};

}  // namespace

TEST_F(TipDialog, HasItsTitleAndItsControls) {
  TipWindow dialog;
  CString title;
  dialog.GetWindowText(title);
  EXPECT_STREQ(title, L"日积月累");
  EXPECT_EQ(dialog.Text(1001), L"启动时显示");
  EXPECT_EQ(dialog.Text(1003), L"上一条");
  EXPECT_EQ(dialog.Text(1002), L"下一条");
  EXPECT_EQ(dialog.Text(1), L"关闭");
  EXPECT_EQ(dialog.Text(1004), L"one\n");
  EXPECT_TRUE(dialog.Checked());
}

TEST_F(TipDialog, NextAndPreviousShowTheirTipsAndThePreviousButtonIsUpdated) {
  TipWindow dialog;
  EXPECT_FALSE(dialog.Enabled(1003));
  dialog.Press(1002);
  EXPECT_EQ(dialog.Text(1004), L"two & two\n");
  EXPECT_TRUE(dialog.Enabled(1003));
  dialog.Press(1003);
  EXPECT_EQ(dialog.Text(1004), L"one\n");
  EXPECT_FALSE(dialog.Enabled(1003));
}

TEST_F(TipDialog, TheFocusMovesToNextBeforePreviousIsDisabled) {
  TipWindow dialog;
  dialog.ShowWindow(SW_SHOW);
  dialog.Press(1002);
  dialog.Press(1002);
  dialog.GetDlgItem(1003)->SetFocus();
  ASSERT_EQ(::GetFocus(), dialog.GetDlgItem(1003)->m_hWnd);
  dialog.Press(1003);
  EXPECT_TRUE(dialog.Enabled(1003));
  EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(1003)->m_hWnd) << "there is an earlier tip";
  dialog.Press(1003);
  EXPECT_FALSE(dialog.Enabled(1003));
  EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(1002)->m_hWnd);
  dialog.Press(1002);
  dialog.GetDlgItem(1)->SetFocus();
  dialog.Press(1003);
  EXPECT_FALSE(dialog.Enabled(1003));
  EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(1)->m_hWnd) << "another control keeps the focus";
}

TEST_F(TipDialog, WithoutAFileSaysSoAndHasNoNextTip) {
  fs::remove(s_folder / "qvxtips.txt");
  TipWindow dialog;
  EXPECT_EQ(dialog.Text(1004), L"没有找到qvxtip.txt文件");
  EXPECT_FALSE(dialog.Enabled(1002));
  EXPECT_FALSE(dialog.Enabled(1003));
}

TEST_F(TipDialog, TheCloseButtonSavesTheSwitch) {
  {
    TipWindow dialog;
    dialog.Check(false);
    dialog.Press(IDOK);
  }
  EXPECT_EQ(Kept(L"StartUp"), 0);
  EXPECT_EQ(Kept(L"Indicator"), 5);
  TipWindow again;
  EXPECT_FALSE(again.Checked());
}

TEST_F(TipDialog, TheSystemMenuDropsTheSwitchAndSavesThePosition) {
  {
    TipWindow dialog;
    dialog.Press(1002);
    dialog.Check(false);
    dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
  }
  EXPECT_EQ(Kept(L"StartUp"), 1);
  EXPECT_EQ(Kept(L"Indicator"), 16);
}

TEST_F(TipDialog, NextReadsTheSwitchAndPreviousRestoresIt) {
  TipWindow dialog;
  dialog.Press(1002);
  dialog.Check(false);
  dialog.Press(1003);
  EXPECT_TRUE(dialog.Checked());
  dialog.Check(false);
  dialog.Press(1002);
  EXPECT_FALSE(dialog.Checked());
  dialog.Press(1003);
  EXPECT_FALSE(dialog.Checked());
}

TEST_F(TipDialog, TheTextIsAFifthLargerThanTheDialogs) {
  TipWindow dialog;
  LOGFONT own{}, text{};
  dialog.GetFont()->GetLogFont(&own);
  dialog.GetDlgItem(1004)->GetFont()->GetLogFont(&text);
  EXPECT_EQ(text.lfHeight, static_cast<LONG>(own.lfHeight * 1.2));
  EXPECT_EQ(text.lfWidth, static_cast<LONG>(own.lfWidth * 1.2));
}

TEST_F(TipDialog, TheTextIsOnWhite) {
  TipWindow dialog;
  HDC dc = ::GetDC(dialog.m_hWnd);
  const LRESULT brush =
      dialog.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                         reinterpret_cast<LPARAM>(dialog.GetDlgItem(1004)->m_hWnd));
  ::ReleaseDC(dialog.m_hWnd, dc);
  EXPECT_EQ(reinterpret_cast<HGDIOBJ>(brush), ::GetStockObject(WHITE_BRUSH));
}

TEST_F(TipDialog, LeaksNoHandle) {
  const auto alive = [] {
    return qvx::OwnedBitmap::Alive() + qvx::OwnedFont::Alive() + qvx::OwnedMemoryDc::Alive();
  };
  const int before = alive();
  for (int round = 0; round < 100; ++round) {
    TipWindow dialog;
    dialog.Press(1002);
  }
  EXPECT_EQ(alive(), before);
}

// Run by the test below in child processes, because a process reads the resolution once.
TEST_F(TipDialog, DISABLED_ShowsThePicturesOfThisScreen) {
  wchar_t expected[16] = L"";
  ASSERT_GT(::GetEnvironmentVariableW(kExpectedDots, expected, 16), 0u);
  HDC screen = ::GetDC(nullptr);
  const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
  ::ReleaseDC(nullptr, screen);
  ASSERT_EQ(dots, std::stoi(expected));
  TipWindow dialog;
  const CSize left = dialog.Picture(1000), top = dialog.Picture(1098);
  if (dots >= 194) {
    CRect room;
    dialog.GetDlgItem(1098)->GetClientRect(room);
    EXPECT_EQ(top.cx, room.Width());
    EXPECT_EQ(top.cy, room.Height());
    EXPECT_NE(top.cx, 618) << "the double picture is stretched to the control";
    return;
  }
  const double scale = dots == 144 ? 1.5 : dots == 120 ? 1.25 : dots == 192 ? 2.0 : 1.0;
  EXPECT_EQ(left.cx, static_cast<int>(90 * scale));
  EXPECT_EQ(left.cy, static_cast<int>(180 * scale));
  EXPECT_EQ(top.cy, static_cast<int>(42 * scale));
}

namespace {

[[maybe_unused]] const bool g_knowsDots = KnowsDotsIfExpected(kExpectedDots);

}  // namespace

TEST(TipDialogPictures, FollowTheDotsPerInchOfTheScreen) {
  const ScreenDots screen;
  for (const int dots : {96, 120, 144, 192, 193, 194, 240}) {
    screen.Set(static_cast<DWORD>(dots));
    ::SetEnvironmentVariableW(kExpectedDots, std::to_wstring(dots).c_str());
    EXPECT_EQ(RunSelf(L"--gtest_brief=1 --gtest_also_run_disabled_tests "
                      L"--gtest_filter=TipDialog.DISABLED_ShowsThePicturesOfThisScreen"),
              0u)
        << dots;
  }
  ::SetEnvironmentVariableW(kExpectedDots, nullptr);
}
