// The menu commands as the host and sibling modules call them: MenuCommands over the live host.
// Each does nothing when the module is not up.
#pragma once

void ReloadMenu();
void ReloadMenuBySearch();
void ToggleRunMode();
void ToggleAviMode();
bool SetMenuFile(const wchar_t* file);  // null: no text given; false when nothing was changed
