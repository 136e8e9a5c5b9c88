// Text files of users: UTF-8 with or without a byte order mark, or the system's code page.
#pragma once

#include <string>

std::wstring ReadTextFile(const std::wstring& path);  // empty if it can't be read
// Writes UTF-8 with a byte order mark. The file is replaced when the new one is complete.
bool WriteTextFile(const std::wstring& path, const std::wstring& text);
