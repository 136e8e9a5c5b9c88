// Accessible object of a row of the palette: name, role, help, and for a header whether it is
// expanded. Needed because rows are owner-drawn buttons: the window system's own object reports
// neither headers nor separators. Owned by CSMenuItem.
#pragma once

#include <string>

#include "ground/win/accessible_object.h"
#include "screenmenu/row_access.h"

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

class RowAccess {
 public:
  // The result of WM_GETOBJECT for the client object of the row's window.
  LRESULT Answer(HWND row, WPARAM wParam);

 private:
  qvx::AccessibleHolder m_holder;
};
