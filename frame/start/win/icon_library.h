// The menu's icon library: a module with bitmaps as resources and no code. It is owned here; the
// kernel's g_hQvxDll publishes the handle.
#pragma once

// Frees the present library and loads this one from the support path. When it is not found or can't
// be loaded, menus have no icons.
void ReplaceIconLibrary(const wchar_t* name);
void FreeIconLibrary();
