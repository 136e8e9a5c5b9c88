// A scope whose changes are undone in one step. The host makes one step of a whole LISP call
// anyway, so that this only counts open scopes and sets no mark.
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
