// The display switches of the current drawing: how walls and columns look. Each call takes the
// drawing's lock where the caller holds none, and changes the drawing only; repainting is the
// caller's. Without a drawing nothing happens.
#pragma once

#include "kernel/kernel_export.h"

QVX_KERNEL void SolidFillOn();
QVX_KERNEL void SolidFillOff();
QVX_KERNEL void BoldLineOn();
QVX_KERNEL void TasGhdHsj123();  // bold lines off; the published name says nothing
QVX_KERNEL void ToggleWallBase();
