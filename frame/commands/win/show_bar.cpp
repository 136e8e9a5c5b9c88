#include "frame/commands/win/show_bar.h"

#include "aced.h"
#include "acedcmdnf.h"
#include "adslib.h"
#include "ground/support_files.h"
#include "kernel/globals.h"
#include "popup/host_menu_files.h"

namespace {

class LiveHostMenus : public HostMenus {
 public:
  bool FindFile(const wchar_t* name, TWCString& path) override { return qvx::FindFile(name, path); }
  bool IsGroupLoaded(const wchar_t* group) override { return acedIsMenuGroupLoaded(group); }
  void Run(const wchar_t* command, const wchar_t* argument) override {
    acedCommandS(RTSTR, command, RTSTR, argument, RTNONE);
  }
};

// Mutable: whether this run of the host has reloaded its menus.
bool g_isRefreshed = false;

}  // namespace

void ShowBar() {
  LiveHostMenus menus;
  LoadHostMenuFiles(menus, g_nProductId, g_dHostVersion, g_isRefreshed);
}
