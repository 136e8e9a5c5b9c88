// Where the native build keeps settings: in memory, and in a file when one is named, either here or
// in the environment variable QVX_SETTINGS_FILE. One line a value, UTF-8, tab-separated:
// root, key path, name, "i" or "s", value; backslash, tab and newline in texts are escaped.
// Key paths and names ignore case, as the registry does.
#pragma once

void UseSettingsFile(const char* path);  // empty or null: memory only; what was kept is dropped
void RefuseSettingsWrites(
    bool machineRoot);  // as a user without rights on the machine's key sees it
