// The kernel's predicates on windows of the host, and the drag of a border between
// viewports with the host's real view.
#include <gtest/gtest.h>

#include "afxext.h"

#include "rxmfcapi.h"

#include "devhost/core/base/journal.h"
#include "devhost/core/host/host.h"
#include "kernel/current_drawing.h"
#include "kernel/host_state.h"
#include "kernel/qvxexport.h"
#include "kernel/tviewportresize.h"
#include "tests/module/win/host_process.h"

using devhost::TheHost;

namespace {

class DrawingWindows : public ::testing::Test {
 protected:
  void SetUp() override {
    HostProcess::Get();
    BeginCurrentDrawing();
    first = TheHost().documents.New();
    firstView = QvxExport::GetCurDwgView()->m_hWnd;
    second = TheHost().documents.New();
    view = QvxExport::GetCurDwgView()->m_hWnd;
  }
  void TearDown() override {
    TheHost().commands.removeGroup(L"TEST");
    EndCurrentDrawing();
    while (AcApDocument* open = TheHost().documents.mdiActiveDocument())
      TheHost().documents.closeDocument(open);
  }

  // With all answers: the program would wait for one that is missing.
  static void Run(const wchar_t* line) {
    TheHost().engine.EnterLine(line);
    while (TheHost().engine.RunWaiting()) {
    }
  }
  HWND ChildOf(HWND parent, const wchar_t* windowClass, DWORD style = 0) {
    return ::CreateWindowExW(0, windowClass, L"", WS_CHILD | style, 0, 0, 20, 20, parent, nullptr,
                             nullptr, nullptr);
  }

  devhost::Document *first = nullptr, *second = nullptr;
  HWND firstView = nullptr, view = nullptr;
};

// The edits of the command line: the one with the history is read-only.
HWND EditOfCommandLine(bool readOnly) {
  for (HWND edit = nullptr;
       (edit = ::FindWindowExW(acedGetAcadDockCmdLine()->m_hWnd, edit, L"Edit", nullptr));)
    if (((::GetWindowLongW(edit, GWL_STYLE) & ES_READONLY) != 0) == readOnly) return edit;
  return nullptr;
}

TEST_F(DrawingWindows, MessagesOfFrameClientChildrenViewsAndInputRowAreLookedAt) {
  const HWND client = acedGetAcadFrame()->m_hWndMDIClient;
  for (const HWND window : {adsw_acadMainWnd(), client, adsw_acadDocWnd(), ::GetParent(firstView),
                            view, firstView, EditOfCommandLine(false)}) {
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(QvxExport::Tasdh1sh1ddhsj123(window));
  }
}

TEST_F(DrawingWindows, MessagesOfOtherWindowsAreNot) {
  const HWND box = ChildOf(view, L"Edit"), onFrame = ChildOf(adsw_acadMainWnd(), L"Edit");
  const HWND dialog = ::CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 50, 50,
                                        adsw_acadMainWnd(), nullptr, nullptr, nullptr);
  const HWND inDialog = ChildOf(dialog, L"Edit");
  for (const HWND window : {box, onFrame, dialog, inDialog, acedGetAcadDockCmdLine()->m_hWnd,
                            EditOfCommandLine(true), ::GetDesktopWindow(), HWND(nullptr)})
    EXPECT_FALSE(QvxExport::Tasdh1sh1ddhsj123(window)) << window;
  ::DestroyWindow(box);
  ::DestroyWindow(onFrame);
  ::DestroyWindow(dialog);
  EXPECT_FALSE(QvxExport::Tasdh1sh1ddhsj123(box)) << "a window that is gone";
}

TEST_F(DrawingWindows, TheViewOfEveryDrawingIsAViewAndOneIsCurrent) {
  EXPECT_TRUE(QvxExport::IsAcadDwgView(view));
  EXPECT_TRUE(QvxExport::IsAcadDwgView(firstView));
  EXPECT_TRUE(QvxExport::IsCurDwgView(view));
  EXPECT_FALSE(QvxExport::IsCurDwgView(firstView));
  for (const HWND window : {adsw_acadMainWnd(), adsw_acadDocWnd(), HWND(nullptr)}) {
    EXPECT_FALSE(QvxExport::IsAcadDwgView(window));
    EXPECT_FALSE(QvxExport::IsCurDwgView(window));
  }
  acDocManager->activateDocument(first);
  EXPECT_TRUE(QvxExport::IsCurDwgView(firstView));
  EXPECT_FALSE(QvxExport::IsCurDwgView(view));
  while (AcApDocument* open = TheHost().documents.mdiActiveDocument())
    TheHost().documents.closeDocument(open);
  EXPECT_EQ(nullptr, QvxExport::GetCurDwgView());
  EXPECT_FALSE(QvxExport::IsCurDwgView(nullptr));
}

TEST_F(DrawingWindows, AHostWithADialogIsNotIdle) {
  EXPECT_TRUE(IsAcadIdle());
  ::EnableWindow(adsw_acadMainWnd(), FALSE);
  EXPECT_FALSE(IsAcadIdle());
  ::EnableWindow(adsw_acadMainWnd(), TRUE);
  EXPECT_TRUE(IsAcadIdle());
}

class ViewportDrag : public DrawingWindows {
 protected:
  void SetUp() override {
    DrawingWindows::SetUp();
    AcEdCommandStack& commands = TheHost().commands;
    commands.addCommand(L"TEST", L"TDragVp", L"TDragVp", 0, TViewportResize::ApplyChange);
    Run(L"-VPORTS 2 Vertical");
    RECT client{};
    ::GetClientRect(view, &client);
    width = client.right;
    height = client.bottom;
    border = Border();
    start = devhost::TheJournal().Count();
  }
  void TearDown() override {
    TViewportResize::OnEscape();
    DrawingWindows::TearDown();
  }

  int Border() const {
    const int left = acedGetWinNum(0, height / 2);
    int x = 0;
    while (x < width && acedGetWinNum(x, height / 2) == left) ++x;
    return x;
  }
  std::string Sent() const {
    std::string text;
    for (const devhost::JournalEntry& entry : devhost::TheJournal().Since(start))
      if (entry.event == "sent") text += entry.fields.at("text").get<std::string>();
    return text;
  }
  void RunSent() {
    while (TheHost().engine.RunWaiting()) {
    }
  }

  int width = 0, height = 0, border = 0, start = 0;
};

TEST_F(ViewportDrag, TheReleaseSendsTheCommandThatMovesTheBorder) {
  ASSERT_GT(border, 100);
  ASSERT_LT(border, width - 100);
  const int y = height / 2, to = border - 80;
  EXPECT_FALSE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border + 20, y})) << "beside it";
  EXPECT_TRUE(TViewportResize::OnMouseMove(0, {border + 1, y}));
  EXPECT_FALSE(TViewportResize::OnMouseMove(0, {border + 20, y}));
  EXPECT_TRUE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border + 1, y}));
  EXPECT_EQ(view, ::GetCapture());
  EXPECT_TRUE(TViewportResize::OnMouseMove(MK_LBUTTON, {to + 1, y}));
  EXPECT_EQ(border, Border()) << "not yet";
  EXPECT_TRUE(TViewportResize::OnLButtonUp(0, {to + 1, y}));
  EXPECT_NE(view, ::GetCapture());
  EXPECT_EQ("TDragVp\n", Sent());
  RunSent();
  EXPECT_NEAR(to, Border(), 1);
  EXPECT_FALSE(TViewportResize::OnLButtonUp(0, {to, y})) << "a release without a press";
  Run(L"TDragVp");
  EXPECT_NEAR(to, Border(), 1) << "once only";
}

TEST_F(ViewportDrag, EscapeGivesUp) {
  const int y = height / 2;
  ASSERT_TRUE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border, y}));
  TViewportResize::OnMouseMove(MK_LBUTTON, {border - 80, y});
  TViewportResize::OnEscape();
  EXPECT_NE(view, ::GetCapture());
  EXPECT_FALSE(TViewportResize::OnLButtonUp(0, {border - 80, y}));
  EXPECT_EQ("", Sent());
  TViewportResize::OnEscape();
}

TEST_F(ViewportDrag, AReleaseWhereThePressWasSendsNothing) {
  const int y = height / 2;
  ASSERT_TRUE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border, y}));
  EXPECT_TRUE(TViewportResize::OnLButtonUp(0, {border, y}));
  EXPECT_EQ("", Sent());
}

TEST_F(ViewportDrag, AMoveWithoutTheButtonEndsTheDrag) {
  const int y = height / 2;
  ASSERT_TRUE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border, y}));
  EXPECT_FALSE(TViewportResize::OnMouseMove(0, {border + 50, y}));
  EXPECT_FALSE(TViewportResize::OnLButtonUp(0, {border + 50, y}));
  EXPECT_EQ("", Sent());
}

TEST_F(ViewportDrag, ALayoutThatChangedSinceIsLeftAlone) {
  const int y = height / 2;
  ASSERT_TRUE(TViewportResize::OnLButtonDown(MK_LBUTTON, {border, y}));
  TViewportResize::OnMouseMove(MK_LBUTTON, {border - 80, y});
  ASSERT_TRUE(TViewportResize::OnLButtonUp(0, {border - 80, y}));
  TheHost().documents.Current()->viewports.MakeSingle();
  RunSent();
  EXPECT_EQ(width, Border());
}

TEST_F(ViewportDrag, OneViewportHasNoBorder) {
  TheHost().documents.Current()->viewports.MakeSingle();
  for (int x = 0; x < width; x += 7) {
    ASSERT_FALSE(TViewportResize::OnMouseMove(0, {x, height / 2}));
    ASSERT_FALSE(TViewportResize::OnLButtonDown(MK_LBUTTON, {x, height / 2}));
  }
}

}  // namespace
