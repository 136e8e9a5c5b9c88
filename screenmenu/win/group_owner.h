// What groups and rows ask of the palette that carries them: where commands go, who answers LISP
// calls, which arrow to show. CScreenMenu implements it; a group knows no more of its palette, so a
// test can put a tree into any window.
#pragma once

#include "afxwin.h"
#include "menu/line_state.h"

// A group as its rows see it; the parent window of a row is one.
class RowHolder {
 public:
  // Puts rows that the last scrolling left behind, far from the view, where they belong.
  virtual void SettleRows() = 0;

 protected:
  ~RowHolder() = default;
};

class GroupOwner {
 public:
  virtual ~GroupOwner() = default;

  // The watch is over the lines, the rows that show them and this owner: any LISP call may end
  // them all.
  virtual qvx::LineSources Lines() = 0;
  // Kept for the palette's life; null when the bitmap did not load.
  virtual HBITMAP Arrow(int depth, bool open) = 0;
  // The same for a bitmap of the icon library: many rows show one icon, and loading is slow.
  virtual HBITMAP Icon(const wchar_t* name) = 0;

  virtual void ArmCommand(const TWCString& command) = 0;  // replaces what waits, restarts the wait
  virtual bool IsHostBusy() = 0;
  virtual void ReportBusy() = 0;        // the message box of a switch that has to give way
  virtual void SwitchWasFlipped() = 0;  // status panes and every other row follow

  virtual void ShowHeaderMenu(TMenuBar& bar, const CRect& button, CPoint at) = 0;
  virtual void ShowLineMenu(TMenuItem& line, CPoint at) = 0;
  virtual void RestoreStatusBar() = 0;
};
