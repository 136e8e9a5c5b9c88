// The LISP functions of the module: defined anew in each drawing, called back by row number. The
// rows are the caller's, so that tests bring their own.
#pragma once

struct LispRow {
  const wchar_t* name;  // "C:..." is callable as a command
  // A function that is not command-style finishes the LISP call itself.
  void (*handler)();
};

// The function code given to the host is the row's index.
void DefineLispFunctions(const LispRow* rows, int count);

// Runs the function that the host asks for, with CMDECHO and BLIPMODE off; a command-style one is
// one undo group. RTERROR for a code that names no row, otherwise RTNORM, whatever the function
// met.
int DispatchLisp(const LispRow* rows, int count);
