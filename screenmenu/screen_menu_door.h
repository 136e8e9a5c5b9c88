// What other rooms ask of the screen menu. No window header. Each function does nothing without a
// palette, unless it says otherwise.
#pragma once

class TMenuBar;
class TMenuSystem;

// Creates the palette, docks and shows it, or takes an existing one back to its dock; with false
// saves and destroys it. A reload of the menu does both in turn.
void InitScreenMenu(bool create, bool show);
bool ScreenMenuHasWindow();

// Hands the "SCREEN" block of a menu that has just been loaded to the palette; the lines of the
// menu before are gone. Without such a block the rows stay; without a palette the block is deleted.
void AttachScreenBar(TMenuSystem& system);

// The bar that the palette's navigation started from; null without a palette.
TMenuBar* ScreenMenuRootBar();

// A line of a pop-up that names the screen menu: the command without its leading "*". Folds or
// opens the group of that label, or shows the help of the line last right-clicked.
void TailCommand(const wchar_t* text);

// Reads the state of every switch row again.
void RefreshScreenMenu();
// In spite of its command's name, TFloatMenuBar, this docks.
void DockFloatingScreenMenu();

// The help file of the product file, for the help of a line; kept for palettes to come.
void SetScreenMenuHelpFile(const wchar_t* name);

// Registers the reactor that follows drawings, or removes it.
void InitScreenMenuReactor(bool add);
