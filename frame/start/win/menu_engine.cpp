#include "frame/start/menu_engine.h"

#include <cwchar>

#include "afxwin.h"
#include "frame/settings/menu_setting.h"
#include "ground/message_box.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"
#include "menu/menu_in_force.h"
#include "menu/menu_loading.h"
#include "screenmenu/screen_menu_door.h"

namespace {

// The interfaces that the engine calls: users of the blocks, files, settings, printing, boxes.
class EngineLinks : public MenuUsers, public MenuFiles, public MenuPrinter, public MenuBoxes {
 public:
  TMenuSystem* CurrentSystem() override { return LoadedMenu(); }
  void AttachScreenBar(TMenuSystem& system) override { ::AttachScreenBar(system); }
  void AttachToolBar(TMenuSystem& system) override {
    if (MenuInForce* menu = TheMenuInForce()) menu->SetToolBar(PrepareToolBar(system));
  }
  bool FindFile(const wchar_t* name, wchar_t* out) override {
    TWCString path;
    return qvx::FindFile(name, path) && CopyPath(path, out);
  }
  bool ReadMenuSetting(wchar_t* out) override {
    TWCString value;
    return LoadMenuSetting(value) && CopyPath(value, out);
  }
  int MenuType() override { return g_iMenuType; }
  void TempFolder(wchar_t* out) override {
    if (!::GetTempPathW(kPathUnits, out)) out[0] = 0;
  }
  void Print(const wchar_t* text) override { adsout << text; }
  void ShowMessage(const wchar_t* text) override { qvx::ShowMessageBox(text); }

 private:
  static bool CopyPath(const TWCString& path, wchar_t* out) {
    if (path.Length() >= kPathUnits) return false;
    std::wcscpy(out, path);
    return true;
  }
};

template <class Use>
auto WithEngine(Use use) {
  EngineLinks links;
  MenuLoading loading(links, links, links, links);
  return use(loading);
}

}  // namespace

bool FindMenuBase(TWCString& base) {
  wchar_t found[MenuLoading::kPathUnits];
  if (!WithEngine([&](MenuLoading& loading) { return loading.FindMenuBase(found); })) return false;
  base = found;
  return true;
}

void CompileMenu(const wchar_t* path) {
  WithEngine([&](MenuLoading& loading) { loading.CompileMenu(path); });
}

void LoadCompiledMenu(const wchar_t* path) {
  WithEngine([&](MenuLoading& loading) { loading.LoadCompiledMenu(path); });
}
