// What the kernel keeps for each open drawing while it is open, none of it saved: whether it is
// prepared, the command that runs in it, the characters typed at its command line, and what was
// selected when its command began.
#pragma once

#include <string>
#include <vector>

#include "kernel/kernel_export.h"
#include "kernel/tpickentset.h"

class QVX_KERNEL TDocData {
 public:
  int m_bReady = 0;  // set by DocStatus, once the host has prepared the drawing for the modules

  // The innermost command that runs in the drawing, by its global name; empty when none does. Set
  // when a command begins; when it ends, is cancelled or fails, the one around it stands again.
  const wchar_t* CurCmdName() const { return m_commands.empty() ? L"" : m_commands.back().c_str(); }

  // Records a character typed at the command line, as WM_CHAR brings it: `code` in the ANSI code
  // page, `repeat` times. The record is what the host has not been given yet:
  //  - Enter and Escape empty it, Backspace takes the last character away;
  //  - Space, which the host takes as Enter, empties it too, but is recorded in a LISP expression;
  //  - other control characters change nothing.
  // `flags` (scan code and state) do not matter. What the host puts on its line by itself, such as
  // an earlier line or a pasted text, is not recorded.
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

// From the first to the second the kernel listens to drawings and commands; outside of that there
// is no data.
QVX_KERNEL void BeginDrawingData();
QVX_KERNEL void EndDrawingData();

// What was selected when the running command began; while none runs, what is selected now. Empty
// without a drawing. The set stays the kernel's.
QVX_KERNEL TPickEntSet& DocGetPickFirst();
