// The handle of the module that this code was linked into, for loading its own bitmaps at any time:
// which resources are current when a message arrives is the host's affair.
#pragma once

#include "afxwin.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace qvx {

inline HINSTANCE ThisModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

}  // namespace qvx
