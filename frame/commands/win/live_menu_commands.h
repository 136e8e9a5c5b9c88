// The menu commands for the host and sibling modules: MenuCommands of the loaded module. Each does
// nothing while the module is not loaded.
#pragma once

void ReloadMenu();
void ReloadMenuBySearch();
void ToggleRunMode();
void ToggleAviMode();
bool SetMenuFile(const wchar_t* file);  // null: no text given; false when nothing was changed
