// The menu engine as the module uses it: its files along the support path, its settings, and the
// menu in force as the system it loads into.
#pragma once

#include "kernel/twcstring.h"

// Drive, folder and name (no extension) of the menu that the settings ask for; false and untouched
// when there is none.
bool FindMenuBase(TWCString& base);

// Both do nothing without a context window.
void CompileMenu(const wchar_t* path);
void LoadCompiledMenu(const wchar_t* path);
