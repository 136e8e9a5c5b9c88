// What the kernel does when the host loads it and when the drawing changes, free of the entry
// point.
#pragma once

#include "kernel/kernel_export.h"

// Asks the host for its release and reads the kept settings. `modulePath` is the kernel's own file;
// its folder becomes the program folder. May run again after an unload in the same process.
QVX_KERNEL void StartKernel(const wchar_t* modulePath);
