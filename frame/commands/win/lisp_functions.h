// The module's LISP functions: documents and clips that the shell's default handler opens, the end
// of a viewport drag, and the change of menu.
#pragma once

#include "frame/commands/lisp_dispatch.h"

const LispRow* LispFunctions(int* count);
