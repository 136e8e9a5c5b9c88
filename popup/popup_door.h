// Pop-ups and the context window as other rooms use them. No window header.
#pragma once

class TMenuBar;
class TWCStringList;

// Ends the use of the block that was shown last, so that its lines may be freed. False while a
// pop-up is shown, and where none can be shown: its lines must live on.
bool PrepareBlockMenu();

// Shows a block as a pop-up at a screen point and runs the chosen line; `flags` are added to the
// flags of TrackPopupMenu. The block must live until the next pop-up. Returns the result of
// TrackPopupMenu; 0 without a context window.
int ShowBlockMenu(TMenuBar& block, int x, int y, unsigned flags);

// Shows the menu for the selection at a screen point; with `force` also when nothing is selected.
// Returns the result of TrackPopupMenu, or 0 when no menu is shown or without a context window.
int ShowContextMenu(int x, int y, int force);

// Creates or destroys the context window; sets g_pContextMenu and the menu in force accordingly.
// `onReadiness` is used for creation only: the readiness timer, which creation starts, calls it
// until StopReadinessTimer.
void InitContextWindow(bool create, void (*onReadiness)());
void StopReadinessTimer();

// Opens the drawings one after the other while the host can open them.
void ReopenDrawings(const TWCStringList& files);
