// The drawing scale in force: that of the drawing, or while the user works in paper space itself
// that of the sheet. Writing it is the business of whoever lets the user choose.
#pragma once

#include "kernel/kernel_export.h"

// The sheet's scale is extended data of the block *Paper_Space: this name and one real (1040).
inline constexpr wchar_t kPaperScaleApplication[] = L"_QVX";

// A sheet that never got a scale is drawn at its own size, 1; without a drawing the default of a
// new one is answered.
QVX_KERNEL double DocGetPScale();
