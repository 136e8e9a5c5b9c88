// Measures the time from a right click until the first row of its menu is painted, and until all
// rows are, against a bare menu of as many owner-drawn rows; both alternate in one run, medians are
// compared. The product menu has 40 lines, 10 of them switches with a LISP function, and an icon on
// each line.
//
//   bench_popup ICON_LIBRARY [ROUNDS]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bare_menu.h"
#include "kernel/globals.h"
#include "popup/win/context_menu_wnd.h"
#include "tests/doubles/win/palette_host.h"

namespace {

constexpr int kLines = 40, kSwitches = 10;
constexpr double kGoal = 1.5;

double Now() {
  LARGE_INTEGER now, frequency;
  ::QueryPerformanceCounter(&now);
  ::QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

struct Times {
  double first = 0, all = 0;
};
Times g_times;
double g_start = 0;

// A row is drawn when its WM_DRAWITEM returns; all are drawn at the first idle moment.
LRESULT CALLBACK OnReturned(int code, WPARAM wParam, LPARAM lParam) {
  const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
  if (code >= 0 && sent.message == WM_DRAWITEM && !g_times.first) g_times.first = Now() - g_start;
  if (code >= 0 && sent.message == WM_ENTERIDLE && sent.wParam == MSGF_MENU) {
    if (!g_times.all) g_times.all = Now() - g_start;
    ::EndMenu();
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

template <class Show>
Times Measure(Show show) {
  g_times = {};
  g_start = Now();
  show();
  ThePaletteHost().Pump();
  return g_times;
}

double Median(std::vector<Times> all, double Times::*part) {
  std::sort(all.begin(), all.end(),
            [part](const Times& a, const Times& b) { return a.*part < b.*part; });
  return all[all.size() / 2].*part;
}

class App : public CWinApp {
} g_app;  // rows are measured on its main window

// The names of the bitmaps in the icon library.
std::vector<std::wstring> IconNames(HMODULE library) {
  std::vector<std::wstring> names;
  ::EnumResourceNamesW(
      library, RT_BITMAP,
      [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR out) {
        if (!IS_INTRESOURCE(name))
          reinterpret_cast<std::vector<std::wstring>*>(out)->push_back(name);
        return TRUE;
      },
      reinterpret_cast<LONG_PTR>(&names));
  return names;
}

void AddSwitch(TMenuSystem& system, TMenuBar& bar, int number, int icon) {
  auto* item = new TMenuSwitchItem;
  item->m_strGetFn = (L"Get" + std::to_wstring(number)).c_str();
  auto* state = new TSwitchStateItem;
  state->m_nValue = 1;
  state->m_strLabel = (L"墙柱填充  开 " + std::to_wstring(number)).c_str();
  state->m_nIconIndex = icon;
  item->m_states.Append(state);
  system.m_switches.Append(item);
  auto* line = new TMenuItem(L"*SWITCH*", L"");
  line->m_pSwitch = item;
  bar.Append(line);
  ThePaletteHost().functions[std::wstring(item->m_strGetFn)] = [] { return 1; };
}

void FillMenu(TMenuSystem& system, const std::vector<std::wstring>& icons) {
  auto* bar = new TMenuBar;
  bar->m_strName = L"Common";  // a name that does not get the recent commands
  system.Append(bar);
  for (int i = 0; i < kLines; ++i) {
    const int icon = icons.empty() ? -1 : i;
    if (!icons.empty())
      system.m_resources.Append(
          new TMenuResItem(L"", icons[static_cast<size_t>(i) % icons.size()].c_str(), L""));
    if (i % (kLines / kSwitches) == 0) {
      AddSwitch(system, *bar, i, icon);
      continue;
    }
    auto* line = new TMenuItem((L"绘制墙体 " + std::to_wstring(i) + L"(&W)").c_str(), L"TWall\n");
    line->m_nIconIndex = icon;
    bar->Append(line);
  }
}

}  // namespace

int main(int argc, char** argv) {
  AfxWinInit(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOWNORMAL);
  const int rounds = argc > 2 ? std::atoi(argv[2]) : 41;
  PaletteHost& host = ThePaletteHost();
  host.OpenFrame();
  g_app.m_pMainWnd = host.frame;
  InitContextWindow(true, [] {});
  StopReadinessTimer();
  g_dHostVersion = 24.0;
  g_nSpeedMenu = 1;
  g_hQvxDll = argc > 1 ? ::LoadLibraryA(argv[1]) : nullptr;
  const std::vector<std::wstring> icons = IconNames(g_hQvxDll);
  FillMenu(*LoadedMenu(), icons);
  const HHOOK hook =
      ::SetWindowsHookExW(WH_CALLWNDPROCRET, OnReturned, nullptr, ::GetCurrentThreadId());

  std::vector<std::wstring> labels;
  for (int i = 0; i < kLines; ++i) labels.push_back(L"绘制墙体 " + std::to_wstring(i) + L"(&W)");
  std::vector<Times> bare, ours;
  {
    bench::BareMenu menu(host.frame->m_hWnd);
    for (int round = -2; round < rounds; ++round) {  // the first rounds warm up
      const Times theirs = Measure([&] { menu.Show(labels, {200, 60}); });
      const Times own = Measure([] { ShowContextMenu(CPoint(200, 60), 1); });
      host.diary.clear();
      if (round < 0) continue;
      bare.push_back(theirs);
      ours.push_back(own);
    }
  }
  ::UnhookWindowsHookEx(hook);
  const double firstRatio = Median(ours, &Times::first) / Median(bare, &Times::first);
  std::printf("%d lines, %d switches, %zu icons, %d rounds\n", kLines, kSwitches, icons.size(),
              rounds);
  std::printf("first row: bare %.2f ms, ours %.2f ms, ratio %.2f (goal %.1f)\n",
              Median(bare, &Times::first), Median(ours, &Times::first), firstRatio, kGoal);
  std::printf("all rows:  bare %.2f ms, ours %.2f ms, ratio %.2f\n", Median(bare, &Times::all),
              Median(ours, &Times::all), Median(ours, &Times::all) / Median(bare, &Times::all));
  InitContextWindow(false, nullptr);
  host.CloseFrame();
  return firstRatio <= kGoal ? 0 : 1;
}
