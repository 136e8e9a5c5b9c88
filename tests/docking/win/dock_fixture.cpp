// The fixture; see the header.
#include "dock_fixture.h"

#include <cwchar>

#include "devhost/ui/palette/palette_store.h"

namespace {

class TestApp : public CWinApp {};

class AppEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW));
    devhost::SetPaletteStoreKey(L"Software\\DevHost\\DockingTests");
  }
  void TearDown() override {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\DevHost\\DockingTests");
  }

 private:
  TestApp m_app;
};

const auto* const g_environment = testing::AddGlobalTestEnvironment(new AppEnvironment);

bool IsWindowsOwn(HWND window) {
  wchar_t name[64] = L"";
  ::GetClassName(window, name, 64);
  return std::wcscmp(name, L"IME") == 0 || std::wcscmp(name, L"MSCTFIME UI") == 0 ||
         std::wcscmp(name, L"Default IME") == 0 || std::wcscmp(name, TOOLTIPS_CLASSW) == 0;
}

BOOL CALLBACK CountOne(HWND window, LPARAM count) {
  if (!IsWindowsOwn(window)) ++*reinterpret_cast<int*>(count);
  return TRUE;
}

BOOL CALLBACK CountTree(HWND window, LPARAM count) {
  if (!IsWindowsOwn(window)) {
    ++*reinterpret_cast<int*>(count);
    ::EnumChildWindows(window, CountOne, count);
  }
  return TRUE;
}

}  // namespace

void PumpAll() {
  for (int round = 0; round < 20; ++round) {
    MSG message;
    bool any = false;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
      any = true;
      ::TranslateMessage(&message);
      ::DispatchMessage(&message);
    }
    AfxGetApp()->OnIdle(0);
    if (!any) return;
  }
}

void MovePointer(CPoint screen) {
  CPoint now;
  for (int quiet = 0, round = 0; quiet < 3 && round < 100; ++round) {
    ::GetCursorPos(&now);
    if (now == screen) {
      ++quiet;
    } else {
      quiet = 0;
      ::SetCursorPos(screen.x, screen.y);
    }
    PumpAll();
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

int CountWindows() {
  int count = 0;
  ::EnumThreadWindows(::GetCurrentThreadId(), CountTree, reinterpret_cast<LPARAM>(&count));
  return count;
}

BOOL PlainBar::CreateIn(CFrameWnd* frame, UINT id, DWORD style) {
  return CWnd::Create(nullptr, L"bar", WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 10, 10), frame,
                      id);
}

CSize PlainBar::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
  if (!stretch) return horizontal ? m_size : CSize(m_size.cy, m_size.cx);
  return horizontal ? CSize(32767, m_size.cy) : CSize(m_size.cy, 32767);
}

BOOL TestPalette::CreateIn(CFrameWnd* frame, bool left, int width) {
  const DWORD style = WS_CHILD | WS_VISIBLE | (left ? 0x1420 : 0x4120);
  if (!Create(L"屏幕菜单", style, CRect(0, 0, width, 80), frame, 0x2E)) return FALSE;
  EnableDocking(0x5000);
  frame->DockControlBar(this, left ? AFX_IDW_DOCKBAR_LEFT : AFX_IDW_DOCKBAR_RIGHT);
  frame->RecalcLayout();
  return TRUE;
}

bool TestFrame::Open() {
  if (!Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650))) return false;
  EnableDocking(CBRS_ALIGN_ANY);
  ShowWindow(SW_SHOW);
  RecalcLayout();
  return true;
}

void TestFrame::RecalcLayout(BOOL notify) {
  ++m_layouts;
  CFrameWnd::RecalcLayout(notify);
}

BOOL TestFrame::OnCreateClient(LPCREATESTRUCT, void*) {
  return ::CreateWindow(L"static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, m_hWnd,
                        reinterpret_cast<HMENU>(UINT_PTR(AFX_IDW_PANE_FIRST)), nullptr,
                        nullptr) != nullptr;
}

void DockTest::SetUp() {
  frame = new TestFrame;
  ASSERT_TRUE(frame->Open());
  AfxGetApp()->m_pMainWnd = frame;
  PumpAll();
}

void DockTest::TearDown() {
  if (frame) frame->DestroyWindow();
  frame = nullptr;
  PumpAll();
  EXPECT_EQ(CountWindows(), 0);
}

CRect DockTest::RectOf(const CWnd& window) const {
  CRect rect;
  window.GetWindowRect(rect);
  frame->ScreenToClient(rect);
  return rect;
}

CRect DockTest::PaneRect() const { return RectOf(*frame->GetDlgItem(AFX_IDW_PANE_FIRST)); }
