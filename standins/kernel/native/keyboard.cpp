// A machine without a keyboard that could be asked: no key is ever down.
#include "kernel/qvxexport.h"

bool QvxExport::IsKeyPressed(int) { return false; }
