// The command TShowBar: loads the add-on's own menu files into the host's menu system, which then
// has the add-on's tool bars and shortcut menus. It does not show the palette. This file decides
// which menu file a host release gets; HostMenus finds files, queries groups and runs commands.
#pragma once

#include "kernel/twcstring.h"

class HostMenus {
 public:
  virtual ~HostMenus() = default;
  virtual bool FindFile(const wchar_t* name, TWCString& path) = 0;
  virtual bool IsGroupLoaded(const wchar_t* group) = 0;
  virtual void Run(const wchar_t* command, const wchar_t* argument) = 0;
};

// `isRefreshed` lives as long as the module. A group that a previous run of the host left loaded is
// unloaded and loaded again, once.
void LoadHostMenuFiles(HostMenus& menus, int productId, double hostVersion, bool& isRefreshed);
