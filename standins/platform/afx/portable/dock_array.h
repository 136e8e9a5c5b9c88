// The array of a dock bar as it is published: a null entry closes each row, the first and the last
// entry are always null, and a value up to 65535 keeps the place of an absent bar with that
// identifier. Plain functions over the array; they never look at what a bar pointer points to.
#pragma once

#include "afx.h"
#include "portable/dock_layout.h"

inline bool IsDockPlaceHolder(const void* entry) {
  return entry && reinterpret_cast<std::uintptr_t>(entry) <= 0xFFFF;
}
inline bool IsDockedBar(const void* entry) {
  return reinterpret_cast<std::uintptr_t>(entry) > 0xFFFF;
}

// -1: not there. `exclude` is an index that doesn't count.
int FindDockEntry(const CPtrArray& bars, const void* entry, int exclude = -1);
void* DockPlaceHolder(UINT id);

// Puts the bar in before index place.at, with a row of its own if asked for; answers its index.
int InsertDockEntry(CPtrArray& bars, void* bar, DockPlace place);
// Takes the entry out; a row that has nothing left goes with it. With a place holder the row stays.
void RemoveDockEntry(CPtrArray& bars, int index, UINT placeHolderId = 0);
