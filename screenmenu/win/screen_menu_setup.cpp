// CScreenMenu: creation and destruction, docking, title and icon from the product file, and the
// functions that sibling modules call.
#include "afxwin.h"

#include "adscodes.h"
#include "ground/command_line.h"
#include "ground/product_section.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"
#include "screenmenu/palette_settings.h"
#include "screenmenu/win/screen_menu.h"

namespace {

constexpr DWORD kPaletteSetStyle = 0x2E;
constexpr DWORD kDockSides = 0x5000;  // left and right only

struct PaletteFace {
  CString title;
  CString iconFile;  // a name on the support path; empty for none
};

PaletteFace ReadPaletteFace() {
  const qvx::ProductSection product;
  return {product.Value(L"CName"), product.Value(L"IconFile")};
}

// Static: a window does not own its WM_SETICON icons, and the host may still draw them while the
// palette is destroyed.
void GiveIcons(CWnd& window, const wchar_t* iconFile) {
  static qvx::OwnedIcon s_large, s_small;
  TWCString path;
  if (!*iconFile || !qvx::FindFile(iconFile, path)) return;
  HICON large = nullptr, small = nullptr;
  ::ExtractIconExW(path, 0, &large, &small, 1);
  window.SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large));
  window.SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small));
  s_large.Reset(large);
  s_small.Reset(small);
}

void DockAndShow(UINT dockBar, bool show) {
  CMDIFrameWnd* frame = acedGetAcadFrame();
  frame->DockControlBar(g_pScreenMenu, dockBar, nullptr);
  g_pScreenMenu->RestoreControlBar(dockBar, nullptr);
  frame->ShowControlBar(g_pScreenMenu, show, TRUE);
  frame->RecalcLayout();
}

// The host does not store the position of a palette whose product has no identifier.
void GiveToolId() {
  if (!qvx::HasToolId(g_nProductId)) return;
  const qvx::ToolId& id = qvx::ToolIdOf(g_nProductId);
  CLSID tool{id.data1, id.data2, id.data3, {}};
  std::copy(std::begin(id.data4), std::end(id.data4), tool.Data4);
  g_pScreenMenu->SetToolID(&tool);
}

bool CreatePalette(const qvx::PaletteSettings& settings, const qvx::DockChoice& dock, bool show) {
  const PaletteFace face = ReadPaletteFace();
  const int width = qvx::UsableWidth(settings.sizeX, ::GetSystemMetrics(SM_CXVIRTUALSCREEN));
  const CRect first(0, 0, width, qvx::kPaletteFirstHeight);
  const DWORD style = dock.barStyle | WS_CHILD | (show ? WS_VISIBLE : 0);
  if (!g_pScreenMenu->Create(face.title, style, first, acedGetAcadFrame(), kPaletteSetStyle))
    return false;
  GiveIcons(*g_pScreenMenu, face.iconFile);
  GiveToolId();
  g_pScreenMenu->EnableDocking(kDockSides);
  return true;
}

void BringUp(bool show) {
  g_pScreenMenu = new CScreenMenu;
  qvx::PaletteSettings settings;
  settings.limitHeight = g_bLimitHeight;
  settings.defaultOpenFirst = g_bDefaultOpenFirst;
  settings.scrollBar = g_bScrollBar;
  qvx::LoadPaletteSettings(settings);
  g_bLimitHeight = settings.limitHeight;
  g_bDefaultOpenFirst = settings.defaultOpenFirst;
  g_bScrollBar = settings.scrollBar;
  const qvx::DockChoice dock = qvx::DockFor(settings.alignment);
  if (!CreatePalette(settings, dock, show)) {
    delete std::exchange(g_pScreenMenu, nullptr);
    return;
  }
  DockAndShow(static_cast<UINT>(dock.dockBar), show);
  if (g_pScreenMenu->IsFloating()) g_pScreenMenu->SetAutoRollup(1);
}

void TakeDown() {
  const bool deletesItself = g_pScreenMenu->AutoDeletes();
  CScreenMenu* palette = g_pScreenMenu;
  if (::IsWindow(palette->GetSafeHwnd())) {
    CRect window;
    palette->GetWindowRect(&window);
    qvx::SavePaletteSize(window.Width(), window.Height());
    palette->CloseSilently();
    palette->DestroyWindow();
  }
  if (!deletesItself) delete palette;
  g_pScreenMenu = nullptr;
}

}  // namespace

CScreenMenu* g_pScreenMenu = nullptr;

void InitScreenMenu(bool create, bool show) {
  if (create && g_pScreenMenu)
    DockAndShow(AFX_IDW_DOCKBAR_LEFT, show);
  else if (create)
    BringUp(show);
  else if (g_pScreenMenu)
    TakeDown();
}

bool ScreenMenuHasWindow() { return g_pScreenMenu && ::IsWindow(g_pScreenMenu->m_hWnd); }

void RefreshScreenMenu() {
  CMenuGroup* root = g_pScreenMenu ? g_pScreenMenu->RootGroup() : nullptr;
  if (root) root->RefreshSwitches();
}

void ShowLineStates() {
  CMenuGroup* root = g_pScreenMenu ? g_pScreenMenu->RootGroup() : nullptr;
  if (root) root->ShowLineStates();
}

void DockFloatingScreenMenu() {
  if (!qvx::HasWorkingDatabase() || !g_pScreenMenu || !g_pScreenMenu->IsFloating()) return;
  acedGetAcadFrame()->DockControlBar(g_pScreenMenu, AFX_IDW_DOCKBAR_LEFT, nullptr);
}

bool IsPaletteVisible() {
  return g_pScreenMenu && g_pScreenMenu->GetSafeHwnd() && (g_pScreenMenu->GetStyle() & WS_VISIBLE);
}

void ShowPalette(bool show) {
  if (!g_pScreenMenu) return;
  if (!show && IsPaletteVisible()) {
    g_pScreenMenu->CloseSilently();
  } else if (show && !IsPaletteVisible()) {
    acedGetAcadFrame()->ShowControlBar(g_pScreenMenu, TRUE, TRUE);
    if (CWnd* view = acedGetAcadDwgView()) view->SetFocus();
  }
}

extern "C" int ShowScreenMenu(int show) {
  qvx::Guarded([&] { ShowPalette(show != 0); });
  return RTNORM;
}

extern "C" int IsScreenMenuVisible() {
  return qvx::GuardedOr(0, [] { return IsPaletteVisible() ? 1 : 0; });
}

extern "C" int GetScreenMenuWidth() {
  return qvx::GuardedOr(0, [] {
    if (!g_pScreenMenu || !g_pScreenMenu->GetSafeHwnd()) return 0;
    CRect window;
    g_pScreenMenu->GetWindowRect(&window);
    return window.Width();
  });
}
