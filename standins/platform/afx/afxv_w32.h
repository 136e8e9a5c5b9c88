// The system's own headers as the class library brings them: with its settings and ahead of every
// use. Included by afx.h; on a machine without Windows the plain types stand in for them.
#pragma once

#ifdef _WIN32
#ifdef _WINDOWS_
#error "windows.h came ahead of the class library: include afx.h or afxwin.h first"
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <commctrl.h>
#include <tchar.h>
#else
#include "ground/plain_types.h"
#endif
