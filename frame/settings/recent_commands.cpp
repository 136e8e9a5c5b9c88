#include "frame/settings/recent_commands.h"

#include "frame/settings/comma_list.h"
#include "ground/product_registry.h"
#include "menu/menu_in_force.h"

void SaveRecentCommands() {
  TMenuSystem* system = LoadedMenu();
  if (!system) return;
  TMenuStack& recent = system->m_recent;
  TWCString text;
  for (int i = recent.Length() - 1; i >= 0; --i) AppendToCommaList(text, recent[i]->m_strCommand);
  qvx::UserKey(L"Settings").SetValue(L"RecentCmd", text);
}

void LoadRecentCommands() {
  CString text;
  qvx::UserKey(L"Settings").GetValue(L"RecentCmd", text);
  TWCStringList commands;
  SplitCommaList(text.GetString(), commands);
  for (int i = 0; i < commands.Length(); ++i) NoteRecentCommand(commands[i]);
}
