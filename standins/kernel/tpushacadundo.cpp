// Counts open scopes only: the host makes one undo step of a LISP call. Operations of the family
// check the count before they open a scope.
#include "kernel/tpushacadundo.h"

namespace {
int g_depth = 0;
}

TPushAcadUndo::TPushAcadUndo() { ++g_depth; }
TPushAcadUndo::~TPushAcadUndo() { --g_depth; }
int TPushAcadUndo::Depth() { return g_depth; }
