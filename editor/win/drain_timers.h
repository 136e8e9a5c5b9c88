// Removes timer messages that wait in the queue for a window, of all its timers.
#pragma once

#include "afxwin.h"

inline void DrainTimers(HWND window) {
  MSG message;
  while (::PeekMessageW(&message, window, WM_TIMER, WM_TIMER, PM_REMOVE)) {
  }
}
