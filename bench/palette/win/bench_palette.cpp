// Measures the palette in a real frame: building a tree of 1000 rows, compared with as many bare
// buttons; folding; scrolling by the wheel. Prints times to standard output as "name milliseconds".
// Before and after each part it looks up a global atom named after the part. The lookup is logged
// by the window server, so `requests` can count the requests of each part.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "bare_buttons.h"
#include "big_menus.h"
#include "kernel/globals.h"
#include "screenmenu/palette_settings.h"
#include "screenmenu/win/screen_menu.h"
#include "tests/doubles/win/palette_host.h"
#include "tests/doubles/win/rooms.h"

namespace {

constexpr int kRows = 1000;
constexpr int kHeaders = 40;

class Part {
 public:
  explicit Part(std::string name) : m_name(std::move(name)) {
    Mark("begin ");
    m_start = Now();
  }
  ~Part() {
    const double spent = 1000.0 * static_cast<double>(Now() - m_start) / Frequency();
    Mark("end ");
    std::printf("%s %.3f\n", m_name.c_str(), spent);
  }
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;

 private:
  void Mark(const char* what) { ::GlobalFindAtomA((what + m_name).c_str()); }
  static long long Now() {
    LARGE_INTEGER now;
    ::QueryPerformanceCounter(&now);
    return now.QuadPart;
  }
  static double Frequency() {
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(frequency.QuadPart);
  }
  std::string m_name;
  long long m_start;
};

void PaintAll(CWnd& window) {
  window.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// The palette is created empty; attaching the menu is part of the measurement.
void AttachMenu(const char* part, std::unique_ptr<TMenuBar> menu) {
  InitScreenMenu(true, true);
  ThePaletteHost().Pump();
  TMenuSystem system;
  system.Append(menu.release());
  const Part measured(part);
  AttachScreenBar(system);
  PaintAll(*g_pScreenMenu);
}

// A menu system whose first resource is the icon of every line.
class IconMenu : public MenuDouble {
 public:
  IconMenu() { system.m_resources.Append(new TMenuResItem(L"WALL", L"BMP_WALL", L"")); }
};

// Positions of the visible rows of the root.
std::vector<CRect> ShownPlaces(CMenuGroup& root) {
  std::vector<CRect> places;
  for (int i = 0; i < root.RowCount(); ++i) {
    CRect place;
    root.Row(i)->GetWindowRect(&place);
    places.push_back(place);
  }
  return places;
}

int CountMoved(const std::vector<CRect>& before, const std::vector<CRect>& after) {
  int moved = 0;
  for (std::size_t i = 0; i < before.size(); ++i) moved += before[i] != after[i];
  return moved;
}

void TakeDown(const char* part) {
  const Part measured(part);
  InitScreenMenu(false, true);
}

void MeasureBare() {
  bench::BareButtons bare(*ThePaletteHost().frame, CRect(200, 10, 320, 500));
  const Part measured("bare");
  bare.Create(kRows, 24);
  bare.Show();
}

void MeasureFlat() {
  AttachMenu("flat", bench::FlatMenu(kRows));
  CMenuGroup& root = *g_pScreenMenu->RootGroup();
  {
    const Part measured("wheel_200");
    for (int i = 0; i < 100; ++i) root.WheelGroup(0, -120, CPoint(0, 0));
    for (int i = 0; i < 100; ++i) root.WheelGroup(0, 120, CPoint(0, 0));
  }
  TakeDown("flat_down");
}

void MeasureFolding() {
  AttachMenu("folding", bench::FoldingMenu(kHeaders, kRows));
  CMenuGroup& root = *g_pScreenMenu->RootGroup();
  const auto toggle = [&root](const std::string& part, int row) {
    const std::vector<CRect> before = ShownPlaces(root);
    {
      const Part measured(part);
      root.ToggleSubMenu(static_cast<unsigned>(row));
    }
    {
      const Part measured(part + "_paint");
      PaintAll(*g_pScreenMenu);
    }
    std::printf("%s_moved_rows %d\n", part.c_str(), CountMoved(before, ShownPlaces(root)));
  };
  toggle("unfold_first_time", 10);
  toggle("fold", 10);
  toggle("unfold", 10);
  toggle("switch_first_time", 5);
  toggle("switch", 10);
  toggle("fold_again", 10);
  toggle("unfold_last_first_time", kHeaders - 1);
  toggle("fold_last", kHeaders - 1);
  toggle("unfold_last", kHeaders - 1);
  {
    const Part measured("wheel_nested_200");
    for (int i = 0; i < 100; ++i) root.WheelGroup(0, 120, CPoint(0, 0));
    for (int i = 0; i < 100; ++i) root.WheelGroup(0, -120, CPoint(0, 0));
  }
  {
    const Part measured("layout_again");
    root.LayoutGroup();
  }
  {
    const Part measured("refresh_switches");
    root.RefreshSwitches();
  }
  TakeDown("folding_down");
}

// From the old palette with 600 rows to the last paint of the new one; reading
// the menu is excluded.
void MeasureReload(const char* part, int openIndex) {
  const auto attach = [] {
    InitScreenMenu(true, true);
    TMenuSystem system;
    system.Append(bench::FoldingMenu(30, 600).release());
    AttachScreenBar(system);
    ThePaletteHost().Pump();
    PaintAll(*g_pScreenMenu);
  };
  qvx::SaveActiveSubMenu(openIndex);
  attach();
  {
    const Part measured(part);
    InitScreenMenu(false, true);
    attach();
  }
  InitScreenMenu(false, true);
  qvx::SaveActiveSubMenu(-1);
}

// The same tree with an icon on every line, from the product's icon library.
void MeasureIcons(const wchar_t* library) {
  g_hQvxDll = ::LoadLibraryW(library);
  if (!g_hQvxDll) return;
  IconMenu host;
  SetMenuInForce(&menu);
  AttachMenu("icons", bench::FoldingMenu(kHeaders, kRows));
  TakeDown("icons_down");
  MeasureReload("reload_600_folded", -1);
  MeasureReload("reload_600_open", 5);
  SetMenuInForce(nullptr);
  ::FreeLibrary(std::exchange(g_hQvxDll, nullptr));
}

void Settle() {
  g_iMenuRowHeight = 25;
  g_bScrollBar = 1;
  g_bLimitHeight = g_bDefaultOpenFirst = 0;
  g_nProductId = 1;
  qvx::SavePaletteState({1, 1, {120, 80}, 0, 0, 1});
  qvx::SaveActiveSubMenu(-1);
}

}  // namespace

int main(int argc, char** argv) {
  if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOWNORMAL)) return 1;
  Settle();
  ThePaletteHost().OpenFrame();
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
  for (int round = 0; round < rounds; ++round) {
    MeasureBare();
    MeasureFlat();
    MeasureFolding();
    if (argc > 2) MeasureIcons(CString(argv[2]));
  }
  ThePaletteHost().CloseFrame();
  return 0;
}
