// The settings of the native build: in memory, and in a file when one is named here or by the
// environment variable QVX_SETTINGS_FILE. One line per value, UTF-8, tab-separated: root, key path,
// name, "i" or "s", value; backslash, tab and newline in texts are escaped. Key paths and names
// ignore case, as in the registry.
#pragma once

void UseSettingsFile(const char* path);       // empty or null: memory only; drops all values
void RefuseSettingsWrites(bool machineRoot);  // refuses writes as for a user without rights
