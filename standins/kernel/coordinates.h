// Points between the coordinate systems of the current drawing, by the host's numbers of them.
#pragma once

#include "gepnt3d.h"

enum class CoordinateSystem : short { World = 0, User = 1, Display = 2 };

// The point itself when the host does not convert.
AcGePoint3d Converted(const AcGePoint3d& point, CoordinateSystem from, CoordinateSystem to);
