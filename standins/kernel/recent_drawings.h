// The drawings that were used last, for reopening them at the next start. The kernel notes them
// while the setting for it is on; the shell reads the list, empties it and opens what is on it.
#pragma once

#include "afx.h"
#include "kernel/kernel_export.h"

constexpr int kMostRecentDrawings = 4;

// Moves a file to the end of a list in which each entry is followed by a comma, and drops the first
// ones beyond kMostRecentDrawings. A name without a folder is a drawing that was never saved; one
// with a comma can't stand in the list. Both are left out.
QVX_KERNEL void NoteRecentDrawing(CString& list, const wchar_t* file);
