// The numbers of door and window models (M0921) beside openings.
#pragma once

#include "kernel/kernel_export.h"

// Shows or hides them in the current drawing; saved with it. Nothing happens without a drawing.
QVX_KERNEL void ToggleModelNumber();
