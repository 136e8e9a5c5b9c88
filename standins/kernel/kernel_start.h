// What the kernel does when the host loads it and when the drawing changes, without the entry
// point.
#pragma once

#include "kernel/kernel_export.h"

// Reads the host's release and the stored settings. `modulePath` is the kernel's own file; its
// folder becomes the program folder. May be called again after an unload in the same process.
QVX_KERNEL void StartKernel(const wchar_t* modulePath);

// Sets g_pCurrentDb to the active drawing, not the current one: while a module is loaded, the host
// makes every open drawing current in turn.
void NoteActiveDrawing();
