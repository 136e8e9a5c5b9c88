// The host gathers all that one LISP call changes into one undo step by itself; what is left to do
// here is to know whether such a scope is open, which operations of the family ask before they open
// one of their own.
#include "kernel/tpushacadundo.h"

namespace {
int g_depth = 0;
}

TPushAcadUndo::TPushAcadUndo() { ++g_depth; }
TPushAcadUndo::~TPushAcadUndo() { --g_depth; }
int TPushAcadUndo::Depth() { return g_depth; }
