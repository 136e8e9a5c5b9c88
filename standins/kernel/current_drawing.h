// Keeps g_pCurrentDb true while drawings are opened, closed and changed between. Begun before any
// other module listens to the documents, so that these find it true already.
#pragma once

#include "kernel/kernel_export.h"

QVX_KERNEL void BeginCurrentDrawing();
QVX_KERNEL void EndCurrentDrawing();
