// Keeps g_pCurrentDb up to date while drawings are opened, closed and activated. Started before
// other modules register document reactors, so that it is already up to date in theirs.
#pragma once

#include "kernel/kernel_export.h"

QVX_KERNEL void BeginCurrentDrawing();
QVX_KERNEL void EndCurrentDrawing();
