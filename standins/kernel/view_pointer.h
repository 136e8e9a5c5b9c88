// Where the pointer is in the drawing. A machine without windows has no pointer.
#pragma once

#include "gepnt3d.h"

// World coordinates; false when the pointer is not over the view of the current drawing.
bool PointerInView(AcGePoint3d& at);
