// What other rooms ask of the pop-ups and of the window that carries them. No window header.
#pragma once

class TMenuBar;
class TWCStringList;

// Shows a block as a pop-up at a screen point and runs what is chosen; `flags` go to TrackPopupMenu
// beside its own. The block has to live until the next pop-up. What TrackPopupMenu gives; 0 without
// a context window.
int ShowBlockMenu(TMenuBar& block, int x, int y, unsigned flags);

// Makes the context window, or destroys it; g_pContextMenu and the menu in force follow.
// `onReadiness` is needed for making only: it is called by the readiness timer, which creation
// starts, until StopReadinessTimer.
void InitContextWindow(bool create, void (*onReadiness)());
void StopReadinessTimer();

// Opens these drawings one after the other when the host is free to.
void ReopenDrawings(const TWCStringList& files);
