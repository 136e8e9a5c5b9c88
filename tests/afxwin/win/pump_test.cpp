// The program object: pump, idle time, resources, message boxes, modules.
#include "test_app.h"

namespace {
class CountingThread : public CWinThread {
 public:
  int idles = 0, pumped = 0;
  bool more = false;
  BOOL OnIdle(LONG lCount) override {
    ++idles;
    if (idles >= 3) ::PostQuitMessage(9);
    return more && lCount < 2;
  }
  BOOL PumpMessage() override {
    ++pumped;
    return CWinThread::PumpMessage();
  }
};
}  // namespace

TEST(Pump, RunsIdleUntilNothingIsLeftAndReturnsTheQuitCode) {
  PumpQueue();
  CountingThread thread;
  thread.more = true;
  EXPECT_EQ(9, thread.Run());
  EXPECT_GE(thread.idles, 3);
}

TEST(Pump, RepeatedPointerMovesStartNoIdleTime) {
  CountingThread thread;
  MSG move{nullptr, WM_MOUSEMOVE, 0, 0, 0, {5, 6}};
  EXPECT_TRUE(thread.IsIdleMessage(&move));
  EXPECT_FALSE(thread.IsIdleMessage(&move));
  move.pt.x = 7;
  EXPECT_TRUE(thread.IsIdleMessage(&move));
  MSG paint{nullptr, WM_PAINT, 0, 0, 0, {}};
  EXPECT_FALSE(thread.IsIdleMessage(&paint));
}

TEST(Pump, DestroyingTheMainWindowEndsTheProgram) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  App().m_pMainWnd = &w;
  EXPECT_EQ(&w, AfxGetMainWnd());
  w.DestroyWindow();
  EXPECT_EQ(nullptr, App().m_pMainWnd);
  MSG message;
  EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST(Pump, IdleTimeUpdatesTheMainWindowAndItsChildren) {
  struct Asked : TestWindow {
    int count = 0;
    LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
      count += m == WM_IDLEUPDATECMDUI;
      return CWnd::WindowProc(m, w, l);
    }
  } main, child;
  ASSERT_TRUE(main.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 9, 9), &main, 1));
  App().m_pMainWnd = &main;
  App().OnIdle(0);
  App().m_pMainWnd = nullptr;
  EXPECT_EQ(1, main.count);
  EXPECT_EQ(1, child.count);
}

TEST(App, IsFoundByEveryModule) {
  EXPECT_EQ(&App(), AfxGetApp());
  EXPECT_EQ(&App(), AfxGetThread());
  EXPECT_STREQ(L"afxwin tests", AfxGetAppName());
}

TEST(App, MessageBoxesGoThroughTheProgram) {
  App().boxes.clear();
  EXPECT_EQ(IDOK, AfxMessageBox(L"有命令未完成"));
  AfxMessageBox(UINT(40009));
  EXPECT_EQ((std::vector<std::wstring>{L"有命令未完成", L"没有找到文件"}), App().boxes);
}

TEST(App, AMessageBoxWithoutAnEntryInTheResourcesIsEmpty) {
  App().boxes.clear();
  AfxMessageBox(UINT(12345));
  EXPECT_EQ((std::vector<std::wstring>{L""}), App().boxes);
}

TEST(Resources, AreSearchedInTheCurrentModuleAndThenInTheExtensions) {
  HINSTANCE self = ::GetModuleHandle(nullptr);
  HINSTANCE library = ::GetModuleHandle(L"user32.dll");
  HINSTANCE old = AfxGetResourceHandle();
  EXPECT_EQ(self, AfxFindResourceHandle(MAKEINTRESOURCE(100), RT_DIALOG));
  AfxSetResourceHandle(library);
  EXPECT_EQ(library, AfxGetResourceHandle());
  EXPECT_EQ(library, AfxFindResourceHandle(MAKEINTRESOURCE(100), RT_DIALOG));
  static AFX_EXTENSION_MODULE extension{};
  ASSERT_TRUE(AfxInitExtensionModule(extension, self));
  new CDynLinkLibrary(extension);
  EXPECT_EQ(self, AfxFindResourceHandle(MAKEINTRESOURCE(100), RT_DIALOG));
  AfxTermExtensionModule(extension);
  EXPECT_EQ(library, AfxFindResourceHandle(MAKEINTRESOURCE(100), RT_DIALOG));
  AfxSetResourceHandle(old);
}

TEST(Resources, AStateScopeChangesNothing) {
  HINSTANCE before = AfxGetResourceHandle();
  {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    EXPECT_EQ(before, AfxGetResourceHandle());
  }
}

TEST(WindowClass, WithTheSamePropertiesIsRegisteredOnce) {
  HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
  std::wstring first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS, arrow));
  EXPECT_NE(first, AfxRegisterWndClass(CS_HREDRAW, arrow));
  WNDCLASS info;
  EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first.c_str(), &info));
  EXPECT_EQ(UINT(CS_DBLCLKS), info.style);
}
