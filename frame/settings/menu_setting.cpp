#include "frame/settings/menu_setting.h"

#include <cstdlib>

#include "aced.h"
#include "adslib.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"

TWCString MenuSettingFolder() {
  TWCString folder;
  resbuf value{};
  if (acedGetVar(L"CPROFILE", &value) == RTNORM && value.restype == RTSTR && value.resval.rstring) {
    folder = value.resval.rstring;
    std::free(value.resval.rstring);
  }
  if (folder.IsEmpty()) folder = L"Settings";
  return folder;
}

bool LoadMenuSetting(TWCString& value) {
  TRegProperty key(GetRegLocation(), MenuSettingFolder());
  key.SetTopRootKey(HKEY_CURRENT_USER);
  CString text;
  if (!key.GetValue(L"Menu", text)) return false;
  value = text.GetString();
  return true;
}

void SaveMenuSetting(const wchar_t* base) {
  TRegProperty key(GetRegLocation(), MenuSettingFolder());
  key.SetTopRootKey(HKEY_CURRENT_USER);
  key.SetValue(L"Menu", base);
}
