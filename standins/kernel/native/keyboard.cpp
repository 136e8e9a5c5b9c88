// The native build has no keyboard: no key is ever down.
#include "kernel/qvxexport.h"

bool QvxExport::IsKeyPressed(int) { return false; }
