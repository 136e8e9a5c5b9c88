#include "frame/settings/recent_commands.h"

#include "frame/settings/comma_list.h"
#include "ground/product_registry.h"

void SaveRecentCommands(TMenuStack& recent) {
  TWCString text;
  for (int i = recent.Length() - 1; i >= 0; --i) AppendToCommaList(text, recent[i]->m_strCommand);
  qvx::UserKey(L"Settings").SetValue(L"RecentCmd", text.c_str());
}

void LoadRecentCommands(TMenuStack& recent) {
  CString text;
  qvx::UserKey(L"Settings").GetValue(L"RecentCmd", text);
  TWCStringList commands;
  SplitCommaList(text.GetString(), commands);
  for (int i = 0; i < commands.Length(); ++i) recent.AddRecent(commands[i]);
}
