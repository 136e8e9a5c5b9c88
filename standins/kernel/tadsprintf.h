// The printing object for the host's command line: adsout << L"\n墙宽: " << 240; and adsout(L"%d",
// n). Prints at once and unchanged; no newline is added.
#pragma once

#include "kernel/kernel_export.h"

class QVX_KERNEL TADSPrintf {
 public:
  TADSPrintf& operator<<(const wchar_t* text);
  TADSPrintf& operator<<(const char* narrow);  // ANSI code page
  TADSPrintf& operator<<(wchar_t unit);
  TADSPrintf& operator<<(int value);
  TADSPrintf& operator<<(double value);  // shortest of %g with 6 digits
  TADSPrintf& operator()(const wchar_t* format, ...);
};

extern QVX_KERNEL TADSPrintf adsout;
