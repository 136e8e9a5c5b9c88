#include "frame/settings/menu_setting.h"

#include "ground/host_variables.h"
#include "ground/product_registry.h"

TWCString MenuSettingFolder() {
  TWCString folder = qvx::TextVariable(L"CPROFILE");
  if (folder.IsEmpty()) folder = L"Settings";
  return folder;
}

bool LoadMenuSetting(TWCString& value) {
  CString text;
  if (!qvx::UserKey(MenuSettingFolder()).GetValue(L"Menu", text)) return false;
  value = text.GetString();
  return true;
}

void SaveMenuSetting(const wchar_t* base) {
  qvx::UserKey(MenuSettingFolder()).SetValue(L"Menu", base);
}
