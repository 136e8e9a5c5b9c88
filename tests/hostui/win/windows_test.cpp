// Status bar panes, buttons, menus, dialogs and start events, with real windows.
#include <gtest/gtest.h>

#include "afxext.h"

#include <oleacc.h>

#include "acstatusbar.h"
#include "adui.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/ui/bars/status_bar.h"
#include "devhost/ui/messages/dialog_watch.h"
#include "devhost/ui/messages/message_pump.h"
#include "devhost/ui/messages/start_watch.h"
#include "devhost/ui/port/live_menus.h"
#include "devhost/ui/port/window_tree.h"

using namespace devhost;

namespace {

class OwnWindow {
 public:
  OwnWindow(const wchar_t* cls, const wchar_t* text, DWORD style, HWND parent = nullptr)
      : m_window(::CreateWindowExW(0, cls, text, style, 10, 10, 200, 80, parent, nullptr, nullptr,
                                   nullptr)) {}
  ~OwnWindow() { ::DestroyWindow(m_window); }
  OwnWindow(const OwnWindow&) = delete;
  OwnWindow& operator=(const OwnWindow&) = delete;
  operator HWND() const { return m_window; }

 private:
  HWND m_window;
};

int CountOf(const char* event) {
  int count = 0;
  for (const JournalEntry& entry : TheJournal().Since(0)) count += entry.event == event;
  return count;
}

}  // namespace

TEST(AcPane, StoresItsProperties) {
  AcPane pane;
  CString text;
  EXPECT_EQ(pane.GetStyle(), ACSBPS_NORMAL);
  EXPECT_TRUE(pane.SetText(L"比例 1:100"));
  EXPECT_TRUE(pane.SetStyle(ACSBPS_POPUP));
  EXPECT_TRUE(pane.SetToolTipText(L"tip"));
  EXPECT_TRUE(pane.GetText(text));
  EXPECT_STREQ(static_cast<LPCTSTR>(text), L"比例 1:100");
  EXPECT_TRUE(pane.GetToolTipText(text));
  EXPECT_STREQ(static_cast<LPCTSTR>(text), L"tip");
  EXPECT_EQ(pane.GetStyle(), ACSBPS_POPUP);
  EXPECT_EQ(pane.SetMinWidth(50), 0);
  EXPECT_EQ(pane.GetMinWidth(), 50);
}

TEST(AcPane, ACopyHasTheSameState) {
  AcPane pane;
  pane.SetText(L"a");
  pane.SetToolTipText(L"b");
  pane.Enable(FALSE);
  const AcPane copy = pane;
  CString text;
  copy.GetText(text);
  EXPECT_STREQ(static_cast<LPCTSTR>(text), L"a");
  copy.GetToolTipText(text);
  EXPECT_STREQ(static_cast<LPCTSTR>(text), L"b");
  EXPECT_FALSE(copy.IsEnabled());
}

TEST(StatusBar, IsNullWithoutAFrame) { EXPECT_EQ(acedGetApplicationStatusBar(), nullptr); }

TEST(StatusBar, RestoresTheTextFromBeforeTheFirstMessage) {
  auto* frame = new CFrameWnd;  // deletes itself with its window
  ASSERT_TRUE(frame->Create(nullptr, L"frame"));
  {
    StatusBar bar;
    ASSERT_TRUE(bar.CreateIn(frame));
    const int before = TheJournal().Count();
    bar.RestoreMessage();  // no message was shown: no effect
    for (const wchar_t* text : {L"own", L"first row", L"second row"})
      ::SetWindowTextW(bar.m_hWnd, text);
    bar.RestoreMessage();
    ::SetWindowTextW(bar.m_hWnd, L"own");
    bar.RestoreMessage();
    std::vector<std::string> texts;
    for (const JournalEntry& entry : TheJournal().Since(before))
      if (entry.event == "statustext") texts.push_back(entry.fields["text"]);
    EXPECT_EQ(texts, (std::vector<std::string>{"own", "first row", "second row", "", "own", ""}));
    bar.DestroyWindow();
  }
  frame->DestroyWindow();
}

TEST(WindowTree, AMnemonicIsNotPartOfTheLabel) {
  EXPECT_EQ(WithoutMnemonic(L"确定(&O)"), L"确定");
  EXPECT_EQ(WithoutMnemonic(L"&OK"), L"OK");
  EXPECT_EQ(WithoutMnemonic(L"A && B"), L"A & B");
  EXPECT_EQ(WithoutMnemonic(L"f(x)"), L"f(x)");
  EXPECT_EQ(WithoutMnemonic(L"(&"), L"(&");
}

TEST(WindowTree, OnlyAVisibleEnabledButtonIsFound) {
  OwnWindow parent(L"#32770", L"parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
  OwnWindow button(L"Button", L"按我(&P)", WS_CHILD | WS_VISIBLE, parent);
  const DWORD thread = ::GetCurrentThreadId();
  EXPECT_EQ(FindButton(thread, L"按我"), static_cast<HWND>(button));
  ::EnableWindow(button, FALSE);
  EXPECT_EQ(FindButton(thread, L"按我"), nullptr);
  ::EnableWindow(button, TRUE);
  ::ShowWindow(parent, SW_HIDE);
  EXPECT_EQ(FindButton(thread, L"按我"), nullptr);
}

TEST(WindowTree, DescribesAWindowWithItsChildren) {
  OwnWindow parent(L"#32770", L"the parent", WS_OVERLAPPEDWINDOW);
  OwnWindow button(L"Button", L"inside", WS_CHILD | WS_VISIBLE, parent);
  bool found = false;
  for (const auto& window : DescribeWindowsOf(::GetCurrentThreadId()))
    if (window["text"] == "the parent") {
      found = true;
      EXPECT_EQ(window["class"], "#32770");
      EXPECT_EQ(window["visible"], false);
      ASSERT_EQ(window["children"].size(), 1u);
      EXPECT_EQ(window["children"][0]["text"], "inside");
    }
  EXPECT_TRUE(found);
}

TEST(DialogWatch, ADialogIsRecordedOnceWithItsTitle) {
  DialogWatch watch;
  const int before = CountOf("dialog");
  OwnWindow dialog(L"#32770", L"选项", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
  ::SetActiveWindow(dialog);
  OwnWindow other(L"Static", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
  ::SetActiveWindow(other);
  ::SetActiveWindow(dialog);
  EXPECT_EQ(CountOf("dialog"), before + 1);
  const JournalEntry last = TheJournal().Since(TheJournal().Count() - 1).front();
  EXPECT_EQ(last.fields["title"], "选项");
}

TEST(DialogWatch, ThePumpIsIdleDuringAMessageBoxAndBusyAfterIt) {
  DialogWatch watch;
  ThePump().MarkBusy();
  {
    OwnWindow box(L"#32770", L"box", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    ::SetActiveWindow(box);
    EXPECT_TRUE(ThePump().IsIdle());
  }
  EXPECT_FALSE(ThePump().IsIdle());
}

TEST(DialogWatch, AMessageBoxOfTheClassLibraryIsNotADialog) {
  DialogWatch watch;
  const int before = CountOf("dialog");
  DialogWatch::MessageBoxScope scope;
  OwnWindow box(L"#32770", L"box", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
  ::SetActiveWindow(box);
  EXPECT_EQ(CountOf("dialog"), before);
}

namespace {

struct DrawnRow {
  MSAAMENUINFO info;
  explicit DrawnRow(const wchar_t* label)
      : info{static_cast<DWORD>(MSAA_MENU_SIG), static_cast<DWORD>(wcslen(label)),
             const_cast<wchar_t*>(label)} {}
};

nlohmann::ordered_json g_menus;
bool g_menuIsOpen = false;

// Describes the menu inside its loop and closes it.
void CALLBACK LookAtMenus(HWND window, UINT, UINT_PTR timer, DWORD) {
  g_menuIsOpen = IsPopupMenuOpen(::GetCurrentThreadId());
  g_menus = DescribeLiveMenus(::GetCurrentThreadId());
  ::KillTimer(window, timer);
  ::EndMenu();
}

}  // namespace

TEST(LiveMenus, OwnerDrawnRowsAreDescribed) {
  OwnWindow window(L"STATIC", L"", WS_POPUP | WS_VISIBLE);
  ::SetForegroundWindow(window);
  const HMENU menu = ::CreatePopupMenu(), sub = ::CreatePopupMenu();
  DrawnRow wall(L"墙(&W)\tCtrl+W");
  wchar_t junk[] = L"no record";
  ::AppendMenuW(sub, MF_STRING, 7, L"inner");
  ::AppendMenuW(menu, MF_OWNERDRAW | MF_CHECKED, 2000, reinterpret_cast<LPCWSTR>(&wall));
  ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  ::AppendMenuW(menu, MF_STRING | MF_GRAYED, 2001, L"开(&O)");
  ::AppendMenuW(menu, MF_OWNERDRAW, 2002, junk);
  ::AppendMenuW(menu, MF_OWNERDRAW, 2003, reinterpret_cast<LPCWSTR>(std::size_t{16}));
  ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), L"more");
  ::SetTimer(window, 1, 50, LookAtMenus);
  ::TrackPopupMenu(menu, TPM_LEFTALIGN, 20, 20, 0, window, nullptr);
  ::DestroyMenu(menu);

  EXPECT_TRUE(g_menuIsOpen);
  ASSERT_EQ(g_menus["open"], true);
  const auto& rows = g_menus["rows"];
  ASSERT_EQ(rows.size(), 6u);
  EXPECT_EQ(rows[0]["label"], "墙(&W)\tCtrl+W");
  EXPECT_EQ(rows[0]["text"], "墙");
  EXPECT_EQ(rows[0]["id"], 2000);
  EXPECT_EQ(rows[0]["checked"], true);
  EXPECT_EQ(rows[1]["separator"], true);
  EXPECT_EQ(rows[2]["text"], "开");
  EXPECT_EQ(rows[2]["enabled"], false);
  EXPECT_EQ(rows[3]["label"], "");  // item data without the record
  EXPECT_EQ(rows[4]["label"], "");  // item data that is not an address
  EXPECT_EQ(rows[5]["rows"][0]["label"], "inner");
  EXPECT_TRUE(rows[5]["rows"][0]["rect"].is_null());  // its menu is closed
  ASSERT_TRUE(rows[0]["rect"].is_array());
  EXPECT_GE(rows[0]["rect"][1].get<int>(), 20);
  EXPECT_LE(rows[0]["rect"][3].get<int>(), rows[1]["rect"][1].get<int>());
}

TEST(LiveMenus, WithoutAMenuNoneIsOpen) {
  EXPECT_FALSE(IsPopupMenuOpen(::GetCurrentThreadId()));
  EXPECT_EQ(DescribeLiveMenus(::GetCurrentThreadId())["open"], false);
}

namespace {

std::string TextOfFile(const std::wstring& path) {
  std::string text;
  std::FILE* file = ::_wfopen(path.c_str(), L"rb");
  for (int c; file && (c = std::fgetc(file)) != EOF;) text += static_cast<char>(c);
  if (file) std::fclose(file);
  return text;
}

}  // namespace

TEST(StartWatch, RecordsWindowCreationAndWhenAPaletteIsFirstVisible) {
  CWinApp* app = AfxGetApp();
  CWinApp own;
  ASSERT_TRUE(app ||
              AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOW));
  auto* frame = new CFrameWnd;  // deletes itself with its window
  ASSERT_TRUE(frame->Create(nullptr, L"frame"));
  frame->EnableDocking(CBRS_ALIGN_ANY);
  const std::wstring file = L"start_watch_test.json";
  StartWatch watch(file);
  {
    OwnWindow early(L"Static", L"before any module", WS_POPUP);
    TheStartTrace().Begin("test.arx");
    CAdUiPaletteSet palette;
    ASSERT_TRUE(palette.Create(L"palette", WS_CHILD | WS_VISIBLE | CBRS_LEFT, CRect(0, 0, 80, 200),
                               frame, 0));
    EXPECT_FALSE(TheStartTrace().IsPaletteShown());  // its frame is hidden
    frame->ShowWindow(SW_SHOWNORMAL);
    ::SetWindowPos(palette.m_hWnd, nullptr, 0, 0, 90, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(TheStartTrace().IsPaletteShown());
    ThePump().MarkIdle();
    palette.DestroyWindow();
  }
  frame->DestroyWindow();
  ASSERT_TRUE(watch.Write());
  const Json trace = Json::parse(TextOfFile(file), nullptr, false);
  ::DeleteFileW(file.c_str());
  ASSERT_TRUE(trace.is_object());
  EXPECT_EQ(trace["module"], "test.arx");
  EXPECT_EQ(trace["steps"][0]["step"], "kInitAppMsg");
  EXPECT_EQ(trace["steps"][1]["step"], "window made");
  EXPECT_TRUE(trace["palette_shown_ms"].is_number());
  EXPECT_TRUE(trace["idle_ms"].is_number());
}

TEST(StartWatch, AFileThatCannotBeWrittenIsReported) {
  const StartWatch watch(L"no\\such\\folder\\trace.json");
  EXPECT_FALSE(watch.Write());
}
