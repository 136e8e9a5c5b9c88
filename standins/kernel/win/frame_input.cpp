#include "kernel/frame_input.h"

#include "afxext.h"

#include "rxmfcapi.h"

bool FrameTakesInput() {
  const HWND frame = adsw_acadMainWnd();
  return !frame || ::IsWindowEnabled(frame);
}
