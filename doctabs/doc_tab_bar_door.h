// The strip of drawing tabs as the module's start and its exports use it. No window header. There
// is one strip from library load on; every function may be called without its window.
#pragma once

#include <string>

class CWnd;

// Creates the window in the host's frame, at its top or bottom. The identifier is not used: the
// window's own is always 64.
void CreateDocTabBar(CWnd* parent, bool top, unsigned id);
// Adds the tab of the drawing that is active at start.
void InitDocTabBar();
void DestroyDocTabBar();

// The host saves a drawing: its title may have changed when the timer fires.
void StartTabCaptionTimer();

// Hides the strip and turns the wish for tabs off, or shows it automatically. Prints nothing.
void HideDocTabBar(int hide);

// The tabs section of the shell state: JSON, null without a window.
std::string DescribeDocTabs();
