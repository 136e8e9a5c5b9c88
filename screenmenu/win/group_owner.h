// The interface of groups and rows to their palette: sending commands, sources for LISP calls,
// arrow bitmaps. CScreenMenu implements it. Groups depend on this interface only, so a tree can be
// created in any window.
#pragma once

#include "afxwin.h"
#include "menu/line_state.h"

// The interface of a row to its group, which is its parent window.
class RowHolder {
 public:
  // Moves rows to their places that the last scrolling left misplaced, out of the view.
  virtual void SettleRows() = 0;

 protected:
  ~RowHolder() = default;
};

class GroupOwner {
 public:
  virtual ~GroupOwner() = default;

  // The watch covers the lines, the rows that show them and this owner: any LISP call may destroy
  // them all.
  virtual qvx::LineSources Lines() = 0;
  // Owned by the palette and valid for its lifetime; null when the bitmap did not load.
  virtual HBITMAP Arrow(int depth, bool open) = 0;
  // The same for a bitmap of the icon library. Cached: rows share icons, and loading is slow.
  virtual HBITMAP Icon(const wchar_t* name) = 0;

  // Replaces a waiting command and restarts the timer.
  virtual void ArmCommand(const TWCString& command) = 0;
  virtual bool IsHostBusy() = 0;
  virtual void ReportBusy() = 0;        // message box: a command runs, no switching
  virtual void SwitchWasFlipped() = 0;  // updates status panes and all switch rows

  virtual void ShowHeaderMenu(TMenuBar& bar, const CRect& button, CPoint at) = 0;
  virtual void ShowLineMenu(TMenuItem& line, CPoint at) = 0;
  virtual void RestoreStatusBar() = 0;
};
