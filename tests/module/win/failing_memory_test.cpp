// Every allocation of the module made to fail in turn, over what a user does all day. Nothing may
// leave the module but the operation that failed: no exception, no handle, no window, no block.
#include <functional>
#include <optional>

#include "tests/module/win/module_memory.h"
#include "tests/module/win/module_test.h"
// after the class library
#include "rxmfcapi.h"

namespace {

constexpr int kMostAllocations = 3000;  // of one operation; more would mean that it never ends

int FaultCount() {
  const std::string shell = Shell();
  const size_t at = shell.find("\"faults\":");
  return at == shell.npos ? -1 : std::atoi(shell.c_str() + at + 9);
}

int HandleCount() {
  const std::string shell = Shell();
  const size_t at = shell.find("\"handles\":");
  return at == shell.npos ? -1 : std::atoi(shell.c_str() + at + 10);
}

HWND RowNamed(const wchar_t* label) {
  struct Search {
    const wchar_t* label;
    HWND found;
  } search{label, nullptr};
  ::EnumChildWindows(
      HostProcess::Get().Frame().m_hWnd,
      [](HWND window, LPARAM argument) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(argument);
        wchar_t text[64] = L"";
        ::GetWindowTextW(window, text, 64);
        if (std::wcscmp(text, wanted.label)) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void TakeMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
}

VOID CALLBACK CloseMenu(HWND, UINT, UINT_PTR, DWORD) { ::EndMenu(); }

// In the middle of the current drawing, through the message loop: Ctrl forces the menu.
void RightClickWithCtrl() {
  CRect area;
  const HWND view = acedGetAcadDwgView()->m_hWnd;
  ::GetWindowRect(view, &area);
  ::SetCursorPos(area.CenterPoint().x, area.CenterPoint().y);
  ::PostMessageW(view, WM_RBUTTONDOWN, MK_RBUTTON | MK_CONTROL, 0);
  ::PostMessageW(view, WM_RBUTTONUP, MK_CONTROL, 0);
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) AfxPumpMessage();
}

class FailingMemory : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    HostProcess::Get().Write(
        L"qvx.qmn",
        "MENU_TITLE = "
        "\"T\"\r\n***SCREEN\r\n[A]^C^CTWall;\r\n[->B]\r\n[C]^C^CTDoor;\r\n[<-E]^C^CTDoor;\r\n"
        "[D]^C^CTWindow;\r\n***COMMON\r\n[a]b;\r\n[->p]\r\n[<-c]d;\r\n***SWITCH\r\n***"
        "RESOURCE\r\n");
    auto& documents = devhost::TheHost().documents;
    m_first = documents.New();
    m_second = documents.New();
    ASSERT_TRUE(LoadModule());
    m_memory.emplace(L"qvx_initstart.arx");
    ASSERT_TRUE(m_memory->IsPatched());
    BringUp();
    Run(L"");
  }

  // Does it with the first allocation failing, then with the second, and so on, until none fails.
  // After each the module has to do it again without a fault, and to hold what it held before.
  void FailInTurn(const std::function<void()>& operation) {
    operation();
    Settle();
    operation();
    Settle();
    const int blocks = ModuleMemory::LiveBlocks();
    const int handles = HandleCount();
    const int windows = HostProcess::Get().ChildWindows();
    int number = 1, faults = FaultCount();
    const int before = faults;
    ASSERT_GE(faults, 0);
    for (; number < kMostAllocations; ++number) {
      SCOPED_TRACE(number);
      ModuleMemory::FailAt(number);
      operation();
      const bool failed = ModuleMemory::HasFailed();
      ModuleMemory::FailAt(0);
      faults = FaultCount();
      operation();
      Settle();
      ASSERT_EQ(FaultCount(), faults) << "the operation without a failing allocation";
      ASSERT_EQ(ModuleMemory::LiveBlocks(), blocks);
      ASSERT_EQ(HandleCount(), handles);
      ASSERT_EQ(HostProcess::Get().ChildWindows(), windows);
      if (!failed) break;
      TakeMessages();
    }
    EXPECT_GT(number, 1) << "the operation allocates nothing";
    EXPECT_LT(number, kMostAllocations);
    EXPECT_GT(faults, before) << "no failure reached a border";
  }

  // The same state whatever an operation left: menu and palette as loaded, the second drawing.
  void Settle() {
    Run(L"QmnLoad\n");
    devhost::TheHost().documents.Activate(m_second);
    Shell();  // its text is kept until the next call
  }

  void TearDown() override {
    m_memory.reset();
    Module::TearDown();
  }

  std::optional<ModuleMemory> m_memory;
  devhost::Document* m_first = nullptr;
  devhost::Document* m_second = nullptr;
};

}  // namespace

TEST_F(FailingMemory, ARightClickIsDroppedWhenAnyOfItsAllocationsFails) {
  SetKernelSetting(L"g_nSpeedMenu", L"2");
  FailInTurn([] {
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 1, CloseMenu);
    RightClickWithCtrl();
    ::KillTimer(nullptr, timer);
  });
}

TEST_F(FailingMemory, AFoldIsDroppedWhenAnyOfItsAllocationsFails) {
  FailInTurn([] {
    if (const HWND header = RowNamed(L"B")) ::SendMessageW(header, BM_CLICK, 0, 0);
  });
}

TEST_F(FailingMemory, AReloadIsDroppedWhenAnyOfItsAllocationsFails) {
  FailInTurn([] { Run(L"QmnLoad\n"); });
}

// It allocates nothing in the module today; that is why no failure of it is to be seen.
TEST_F(FailingMemory, AChangeOfDrawingAllocatesNothing) {
  ModuleMemory::FailAt(1);
  devhost::TheHost().documents.Activate(m_first);
  devhost::TheHost().documents.Activate(m_second);
  EXPECT_FALSE(ModuleMemory::HasFailed());
  ModuleMemory::FailAt(0);
  EXPECT_EQ(FaultCount(), 0);
}
