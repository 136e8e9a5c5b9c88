#include "frame/settings/recent_commands.h"

#include "frame/settings/comma_list.h"
#include "kernel/globals.h"
#include "kernel/tregproperty.h"

void SaveRecentCommands(TMenuStack& recent) {
  TWCString text;
  for (int i = recent.Length() - 1; i >= 0; --i) AppendToCommaList(text, recent[i]->m_strCommand);
  TRegProperty key(GetRegLocation(), L"Settings");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  key.SetValue(L"RecentCmd", text.c_str());
}

void LoadRecentCommands(TMenuStack& recent) {
  TRegProperty key(GetRegLocation(), L"Settings");
  key.SetTopRootKey(HKEY_CURRENT_USER);
  CString text;
  key.GetValue(L"RecentCmd", text);
  TWCStringList commands;
  SplitCommaList(text.GetString(), commands);
  for (int i = 0; i < commands.Length(); ++i) recent.AddRecent(commands[i]);
}
