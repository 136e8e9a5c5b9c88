// The pointer's position in the drawing; none in the native build.
#pragma once

#include "gepnt3d.h"

// World coordinates; false when the pointer is not over the view of the current drawing.
bool PointerInView(AcGePoint3d& at);
