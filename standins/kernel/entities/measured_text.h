// Texts of dimensions: the measured value, unless the object has a text of its own.
#pragma once

#include <string>

#include "kernel/kernel_export.h"

// What a dimension stores for a typed text: nothing when it is the measured value, or when it ends
// in "<", which restores that value.
QVX_KERNEL std::wstring OwnTextOf(const std::wstring& typed, const std::wstring& measured);
