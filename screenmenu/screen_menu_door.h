// The screen menu as other rooms use it. No window header. Each function does nothing without a
// palette, unless stated otherwise.
#pragma once

class TMenuBar;
class TMenuSystem;

// Creates, docks and shows the palette, or returns an existing one to its dock; with `create` false
// saves and destroys it. A reload of the menu does both in turn.
void InitScreenMenu(bool create, bool show);
bool ScreenMenuHasWindow();

// Moves the "SCREEN" block of a newly loaded menu to the palette; the lines of the previous menu
// are destroyed by then. Without the block the rows stay; without a palette it is deleted.
void AttachScreenBar(TMenuSystem& system);

// The root bar of the palette's navigation; null without a palette.
TMenuBar* ScreenMenuRootBar();

// A pop-up line for the screen menu: the command without its leading "*". Folds or opens the group
// of that label, or shows the help of the line last right-clicked.
void TailCommand(const wchar_t* text);

// As the exports ShowScreenMenu and IsScreenMenuVisible.
void ShowPalette(bool show);
bool IsPaletteVisible();

// The wheel over the palette, at a screen point. The group that scrolls is the open one below the
// root, or the root; a group without rows contains no point.
bool IsInScreenMenu(int x, int y);
bool IsInWheelGroup(int x, int y);
void WheelScreenMenu(int delta, int x, int y);

// Reads the state of every switch row again.
void RefreshScreenMenu();
// To be called after switch states were copied into lines outside of the palette: shows them in the
// rows. Without it a later refresh finds no difference and leaves the rows as they are.
void ShowLineStates();
// Docks the palette, despite the name of its command, TFloatMenuBar.
void DockFloatingScreenMenu();

// The help file named in the product file, for help of a line; also for palettes created later.
void SetScreenMenuHelpFile(const wchar_t* name);

// Registers the reactor that follows drawings, or removes it.
void InitScreenMenuReactor(bool add);
