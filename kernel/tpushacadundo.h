// One undo group for a scope: what the host records between construction and destruction is taken
// back in one step. Scopes nest; only the outermost one marks.
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
