// The state of the host for input, all by the current drawing. For the host's main thread.
#pragma once

#include "kernel/kernel_export.h"

// A drawing is open, and no command, LISP function or dialog runs in it.
QVX_KERNEL bool IsAcadIdle();

// By the kernel's own record of typed characters (TDocData::OnAcadChar): whether there is none, and
// whether it is an unfinished LISP expression. Without a drawing the line is empty.
QVX_KERNEL bool IsCommandLineEmpty();
QVX_KERNEL bool IsLispExpress();

// Empties that record. The host's own line stays.
QVX_KERNEL void ClearKeyboardBuffer();
