// The LISP functions of the module: defined in each drawing, called back by row number. The caller
// provides the rows.
#pragma once

struct LispRow {
  const wchar_t* name;  // "C:..." is callable as a command
  // A function that is not command-style returns the LISP result itself.
  void (*handler)();
};

// The function code given to the host is the row's index.
void DefineLispFunctions(const LispRow* rows, int count);

// Runs the function that the host calls, with CMDECHO and BLIPMODE off; a command-style one is one
// undo group. RTERROR for a code without a row, otherwise RTNORM, even when the function failed.
int DispatchLisp(const LispRow* rows, int count);
