// Marks a scope whose changes are to be taken back in one step. The host makes one step of a whole
// LISP call by itself, so the scope only counts how deep such scopes stand; it sets no mark.
#pragma once

#include "kernel/kernel_export.h"

class QVX_KERNEL TPushAcadUndo {
 public:
  TPushAcadUndo();
  ~TPushAcadUndo();
  TPushAcadUndo(const TPushAcadUndo&) = delete;
  TPushAcadUndo& operator=(const TPushAcadUndo&) = delete;

  static int Depth();  // open scopes
};
