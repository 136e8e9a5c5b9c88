// The array of a dock bar; see the header.
#include "portable/dock_array.h"

int FindDockEntry(const CPtrArray& bars, const void* entry, int exclude) {
  for (int i = 0; i < bars.GetSize(); ++i)
    if (i != exclude && bars[i] == entry) return i;
  return -1;
}

void* DockPlaceHolder(UINT id) {
  return reinterpret_cast<void*>(static_cast<std::uintptr_t>(id & 0xFFFF));
}

int InsertDockEntry(CPtrArray& bars, void* bar, DockPlace place) {
  bars.InsertAt(place.at, bar);
  if (place.newRow) bars.InsertAt(place.at + 1, nullptr);
  return place.at;
}

void RemoveDockEntry(CPtrArray& bars, int index, UINT placeHolderId) {
  if (placeHolderId) {
    bars[index] = DockPlaceHolder(placeHolderId);
    return;
  }
  bars.RemoveAt(index);
  if (!bars[index - 1] && !bars[index]) bars.RemoveAt(index);
}
