// The order of the real module's start and unload as the host's side of the calls sees it, compared
// with the list of steps. load_sequence_test has the steps that make no call to the host. A room
// that is built later adds its own line here.
#include "devhost/core/base/start_trace.h"
#include "devhost/ui/messages/start_watch.h"
#include "tests/module/win/module_test.h"

namespace {

using List = std::vector<std::string>;

bool Begins(const std::string& text, const char* with) { return text.rfind(with, 0) == 0; }

// The steps of the module itself, without the start of other modules, host variables and windows
// other than the context window. Consecutive calls of one name are one step with their number.
List OwnSteps() {
  List own;
  std::string inside;  // the other module that is starting
  for (const devhost::StartStep& step : devhost::TheStartTrace().Steps()) {
    const bool isOwn = step.detail == "qvx_initstart.arx";
    if (step.name == "kInitAppMsg" && !isOwn) inside = step.detail;
    if (inside.empty() && step.name != "acedGetVar" && step.name != "var" &&
        (step.name != "window made" || Begins(step.detail, "Afx:"))) {
      std::string text = step.name;
      if (!step.detail.empty() && step.name != "window made") text += " " + step.detail;
      if (step.times > 1) text += " x" + std::to_string(step.times);
      own.push_back(text);
    }
    if (step.name == "kInitAppMsg done" && step.detail == inside) inside.clear();
  }
  return own;
}

// What exists of the module, and what it has saved already.
std::string Standing() {
  return "kept \"" + devhost::Utf8(TextOf(L"Settings", L"RecentCmd")) + "\", commands " +
         std::to_string(ModuleCommands()) + (Panes() > 0 ? ", panes" : "") +
         (IsMapped(L"qvx.dll") ? ", icons" : "");
}

// mutable: the record of windows destroyed while the hook is set; several in a row are one line.
HWND g_contextWindow = nullptr, g_strip = nullptr;
List g_gone;

LRESULT CALLBACK NoteDestroyed(int code, WPARAM window, LPARAM details) {
  if (code == HCBT_DESTROYWND) {
    const HWND gone = reinterpret_cast<HWND>(window);
    const bool isStrip = gone == g_strip || ::GetParent(gone) == g_strip;
    const std::string line = (gone == g_contextWindow ? "context window: "
                              : isStrip               ? "tabs: "
                                                      : "palette: ") +
                             Standing();
    if (g_gone.empty() || g_gone.back() != line) g_gone.push_back(line);
  }
  return ::CallNextHookEx(nullptr, code, window, details);
}

}  // namespace

TEST_F(Module, StartsInTheSpecifiedOrder) {
  ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);  // a first start
  HostProcess::Get().Write(L"dmload.rx", "qvx_design.arx\r\n");
  HostProcess::Get().Write(L"qvx.ini", "[Product]\nTitle=Test\n");
  HostProcess::Get().Write(L"qvxtips.txt", "one\r\ntwo\r\n");
  SetNumber(L"Settings", L"g_nCustomFlag", 0);
  SetNumber(L"Tips", L"StartUp", 0);
  {
    const devhost::StartWatch watch(L"");
    ASSERT_TRUE(LoadModule());
  }
  EXPECT_EQ(
      OwnSteps(),
      (List{"kInitAppMsg qvx_initstart.arx", "module qvx_kernal.arx loaded", "unlockApplication",
            "registerAppMDIAware", "acedFindFile qvxtips.txt",
            "acedFindFile qvx.qmn x2",  // and its icon library
            "window made", "acedRegisterFilterWinMsg", "addCommand TShowBar x14", "addReactor",
            "acedFindFile dmload.rx x2",  // and the file that it names
            "module qvx_design.arx loaded", "acedFindFile qvx.ini",
            "kInitAppMsg done qvx_initstart.arx"}));
  for (const wchar_t* name : {L"dmload.rx", L"qvx.ini", L"qvxtips.txt"})
    HostProcess::Get().Remove(name);
  ASSERT_TRUE(UnloadModule());  // which saves the flags
  SetNumber(L"Settings", L"g_nCustomFlag", 2);
  SetNumber(L"Tips", L"StartUp", 1);
  acrxUnloadModule(L"qvx_design.arx");
  ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
}

// Observed when each of the two windows is destroyed: the steps before it in the list are
// done, those after it are not.
TEST_F(Module, UnloadsInTheSpecifiedOrder) {
  HostProcess::Get().CopyProductFile(L"qvx.dll");
  SetText(L"Settings", L"RecentCmd", L"a,b,");
  ASSERT_TRUE(LoadModule());
  BringUp();
  Forget(L"Settings", L"RecentCmd");
  g_gone.clear();
  g_contextWindow = HostProcess::Get().ContextWindow();
  g_strip = ::GetDlgItem(HostProcess::Get().Frame().m_hWnd, 64);
  const HHOOK hook = ::SetWindowsHookExW(WH_CBT, NoteDestroyed, nullptr, ::GetCurrentThreadId());
  Export<int (*)(int, void*)>(L"qvx_initstart.arx", "acrxEntryPoint")(AcRx::kUnloadAppMsg, nullptr);
  ::UnhookWindowsHookEx(hook);
  EXPECT_EQ(g_gone, (List{"palette: kept \"a,b,\", commands 14, panes, icons",
                          "context window: kept \"a,b,\", commands 14, panes, icons",
                          "tabs: kept \"a,b,\", commands 0, panes"}));
  EXPECT_EQ(Standing(), "kept \"a,b,\", commands 0");
  ASSERT_TRUE(UnloadModule());
  Forget(L"Settings", L"RecentCmd");
  HostProcess::Get().Remove(L"qvx.dll");
}
