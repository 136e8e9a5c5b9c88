// The kernel's data of each open drawing, not saved: whether the drawing is prepared, the running
// command, the characters typed at the command line, and the selection at the start of the command.
#pragma once

#include <string>
#include <vector>

#include "kernel/kernel_export.h"
#include "kernel/tpickentset.h"

class QVX_KERNEL TDocData {
 public:
  int m_bReady = 0;  // set by DocStatus when the host loads the drawing into the modules

  // The innermost command that runs in the drawing, by its global name; empty when none does. Set
  // when a command begins; restored when it ends, is cancelled or fails.
  const wchar_t* CurCmdName() const { return m_commands.empty() ? L"" : m_commands.back().c_str(); }

  // Records a character typed at the command line, as WM_CHAR brings it: `code` in the ANSI code
  // page, `repeat` times. The record is the unfinished line:
  //  - Enter and Escape empty it, Backspace takes the last character away;
  //  - Space, which ends a line too, empties it, but is recorded in a LISP expression;
  //  - other control characters change nothing.
  // `flags` (scan code and state) are not used. Text that the host inserts itself, such as an
  // earlier line or pasted text, is not recorded.
  void OnAcadChar(char code, int repeat, int flags);

  const std::string& TypedText() const { return m_typed; }
  void ClearTypedText() { m_typed.clear(); }
  bool IsTypingLisp() const;  // the record begins with "(" or holds one that is not closed

  void BeginCommand(const wchar_t* name);
  void EndCommand();  // the innermost
  TPickEntSet& PickFirst() { return m_pickFirst; }

 private:
  std::string m_typed;
  std::vector<std::wstring> m_commands;  // the outermost first
  TPickEntSet m_pickFirst;
};

// The data of the drawing in scope; null without one.
QVX_KERNEL TDocData* GetCurDocData();

// Adds and removes the reactors. Outside of that there is no data.
QVX_KERNEL void BeginDrawingData();
QVX_KERNEL void EndDrawingData();

// The selection at the start of the running command; while none runs, the current selection. Empty
// without a drawing. Owned by the kernel.
QVX_KERNEL TPickEntSet& DocGetPickFirst();
