#include "kernel/view_pointer.h"

bool PointerInView(AcGePoint3d&) { return false; }
