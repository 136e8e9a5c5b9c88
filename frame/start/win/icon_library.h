// The menu's icon library: a module with bitmaps as resources and no code. The kernel's g_hQvxDll
// shows its handle to everybody; the ownership is here alone.
#pragma once

// Frees the present library and loads this one where the support path has it; without it, or when
// it can't be loaded, menus have no icons.
void ReplaceIconLibrary(const wchar_t* name);
void FreeIconLibrary();
