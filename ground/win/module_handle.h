// The handle of the module that this code is linked into. The module's bitmaps are loaded by it,
// because the host decides which resources are current when a message arrives.
#pragma once

#include "afxwin.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace qvx {

inline HINSTANCE ThisModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

}  // namespace qvx
