// The menu engine with files from the support path and the module's settings. It loads into the
// menu in force.
#pragma once

#include "kernel/twcstring.h"

// Drive, folder and name (no extension) of the menu that the settings select; false, with `base`
// unchanged, when there is none.
bool FindMenuBase(TWCString& base);

// Both do nothing without a context window.
void CompileMenu(const wchar_t* path);
void LoadCompiledMenu(const wchar_t* path);
