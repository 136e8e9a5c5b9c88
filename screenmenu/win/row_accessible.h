// Lets screen readers read a row of the palette through the published accessibility interface:
// name, role, help, and of a header whether it is expanded. Rows are owner-drawn buttons, of which
// the window system itself knows neither header nor separator. Held by CSMenuItem.
#pragma once

#include <string>

#include "afxwin.h"
#include "screenmenu/row_access.h"

struct IAccessible;

// What the accessible object asks of its row, which is a window.
class AccessibleRow {
 public:
  virtual qvx::RowFacts Facts() const = 0;
  virtual std::wstring Help() const = 0;
  // Called before the row's place is read: it may stand elsewhere while it is out of view.
  virtual void SettlePlace() const = 0;

 protected:
  ~AccessibleRow() = default;
};

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
