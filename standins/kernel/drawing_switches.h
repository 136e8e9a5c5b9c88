// The display switches of the current drawing for walls and columns. Each function locks the
// drawing unless the caller holds a lock, and changes the drawing only; the caller repaints. Does
// nothing without a drawing.
#pragma once

#include "kernel/kernel_export.h"

QVX_KERNEL void SolidFillOn();
QVX_KERNEL void SolidFillOff();
QVX_KERNEL void BoldLineOn();
QVX_KERNEL void TasGhdHsj123();  // turns bold lines off
QVX_KERNEL void ToggleWallBase();
