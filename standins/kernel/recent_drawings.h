// The recent drawings, which are reopened at the next start. The kernel records them while the
// setting is on; the shell reads the list, empties it and opens the drawings.
#pragma once

#include "afx.h"
#include "kernel/kernel_export.h"

constexpr int kMostRecentDrawings = 4;

// Moves a file to the end of a list in which each entry is followed by a comma, and drops the
// oldest entries beyond kMostRecentDrawings. Names without a folder, which were never saved, and
// names with a comma are not added.
QVX_KERNEL void NoteRecentDrawing(CString& list, const wchar_t* file);
