// The command TShowBar: loads the add-on's own menu files into the host's menu system, so that its
// tool bars and shortcut menus are there. It shows no palette. Which file belongs to which host is
// decided here; finding files, asking for groups and running commands is the caller's.
#pragma once

#include "kernel/twcstring.h"

class HostMenus {
 public:
  virtual ~HostMenus() = default;
  virtual bool FindFile(const wchar_t* name, TWCString& path) = 0;
  virtual bool IsGroupLoaded(const wchar_t* group) = 0;
  virtual void Run(const wchar_t* command, const wchar_t* argument) = 0;
};

// `isRefreshed` lives as long as the module: a group that an earlier run of the host left loaded is
// unloaded and loaded again once.
void LoadHostMenuFiles(HostMenus& menus, int productId, double hostVersion, bool& isRefreshed);
