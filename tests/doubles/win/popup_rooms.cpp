// The pop-ups' door, noted in TheRooms, and the menu in force that stands in for the context
// window's.
#include "afxwin.h"
#include "kernel/globals.h"
#include "popup/popup_door.h"
#include "tests/doubles/win/rooms.h"

bool PrepareBlockMenu() { return !TheRooms().popupShown; }

int ShowBlockMenu(TMenuBar& block, int x, int y, unsigned) {
  TheRooms().shownAt = {x, y};
  TheRooms().shownLines = block.Length();
  return 0;
}

qvx::LineSources MenuDouble::Lines() {
  return {&lisp, &system, g_hQvxDll != nullptr, life.Watch()};
}
