// The window procedure of every window class of the module. The class library's own procedure
// catches its own exceptions only; any other would unwind through the window system.
#pragma once

#include "afxwin.h"
#include "ground/guard.h"

namespace qvx {

// The result of a message whose handler threw. WM_CREATE: the creation fails. WM_PAINT: the window
// is validated, or the system would send the message again without end.
inline LRESULT FaultResult(HWND window, UINT message) {
  if (message == WM_PAINT) ::ValidateRect(window, nullptr);
  return message == WM_CREATE ? -1 : 0;
}

// Base: CWnd or a class derived from it. Virtual functions that the host calls without a message
// (PreTranslateMessage, layout, closing) are guarded where they are overridden.
template <class Base>
class GuardedWindow : public Base {
 public:
  using Base::Base;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    const HWND window = this->m_hWnd;  // the handler may delete this object
    try {
      return Base::WindowProc(message, wParam, lParam);
    } catch (...) {
      EndFault();
      return FaultResult(window, message);
    }
  }
};

}  // namespace qvx
