// The array of a dock bar as published: a null entry ends each row, the first and the last entry
// are always null, and a value up to 65535 is the place holder of an absent bar with that
// identifier. Plain functions over the array; they do not dereference bar pointers.
#pragma once

#include "afx.h"
#include "portable/dock_layout.h"

inline bool IsDockPlaceHolder(const void* entry) {
  return entry && reinterpret_cast<std::uintptr_t>(entry) <= 0xFFFF;
}
inline bool IsDockedBar(const void* entry) {
  return reinterpret_cast<std::uintptr_t>(entry) > 0xFFFF;
}

// -1: not found. `exclude` is an index to ignore.
int FindDockEntry(const CPtrArray& bars, const void* entry, int exclude = -1);
void* DockPlaceHolder(UINT id);

// Inserts the bar before index place.at, in a new row if place.newRow is set; returns its index.
int InsertDockEntry(CPtrArray& bars, void* bar, DockPlace place);
// Removes the entry and its row if that is empty then. A place holder keeps the row.
void RemoveDockEntry(CPtrArray& bars, int index, UINT placeHolderId = 0);
