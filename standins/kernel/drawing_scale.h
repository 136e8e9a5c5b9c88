// The current drawing scale: that of the drawing, or of the sheet while paper space is active. Read
// only; the caller that lets the user choose a scale writes it.
#pragma once

#include "kernel/kernel_export.h"

// The sheet's scale is extended data of the block *Paper_Space: this name and one real (1040).
inline constexpr wchar_t kPaperScaleApplication[] = L"_QVX";

// 1 for a sheet without a scale; the default of a new drawing without a drawing.
QVX_KERNEL double DocGetPScale();
