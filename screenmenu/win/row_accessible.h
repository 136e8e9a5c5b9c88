// Accessible object of a row of the palette: name, role, help, and for a header whether it is
// expanded. Needed because rows are owner-drawn buttons: the window system's own object reports
// neither headers nor separators. Owned by CSMenuItem.
#pragma once

#include <string>

#include "afxwin.h"
#include "screenmenu/row_access.h"

struct IAccessible;

// The interface of the accessible object to its row, which is a window.
class AccessibleRow {
 public:
  virtual qvx::RowFacts Facts() const = 0;
  virtual std::wstring Help() const = 0;
  // Called before the row's rectangle is read: the window may be misplaced while out of view.
  virtual void SettlePlace() const = 0;

 protected:
  ~AccessibleRow() = default;
};

// One row's accessible object, created at the first request. Clients in other processes are
// disconnected when the row is destroyed: the object's code may be unloaded after that.
class RowAccess {
 public:
  RowAccess() = default;
  ~RowAccess();
  RowAccess(const RowAccess&) = delete;
  RowAccess& operator=(const RowAccess&) = delete;

  // The result of WM_GETOBJECT for the client object of the row's window.
  LRESULT Answer(HWND row, WPARAM wParam);

 private:
  IAccessible* m_object = nullptr;  // owned by reference
};
