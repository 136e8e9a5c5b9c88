// Lets screen readers read a row of the palette through the published accessibility interface:
// name, role, help, and of a header whether it is expanded. Rows are owner-drawn buttons, of which
// the window system itself knows neither header nor separator. Held by CSMenuItem.
#pragma once

#include "afxwin.h"

struct IAccessible;

// One row's accessible object, made when somebody first asks. Readers in other processes are cut
// off when the row goes: the object's code may leave the process after that.
class RowAccess {
 public:
  RowAccess() = default;
  ~RowAccess();
  RowAccess(const RowAccess&) = delete;
  RowAccess& operator=(const RowAccess&) = delete;

  // The answer to WM_GETOBJECT for the client object of the row's window.
  LRESULT Answer(HWND row, WPARAM wParam);

 private:
  IAccessible* m_object = nullptr;  // owned by reference
};
