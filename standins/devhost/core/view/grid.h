// The dots of the grid in one viewport.
#pragma once

#include <vector>

#include "devhost/core/base/user_system.h"
#include "devhost/core/view/view_transform.h"

namespace devhost {

constexpr int kDensestGrid = 8;  // pixels between dots; a denser grid is not shown

// Pixels of the crossings in steps of `dx` and `dy` along the axes of `system`; empty for steps
// that are not positive and for a grid that is too dense.
std::vector<POINT> GridDots(const ViewTransform& view, const UserSystem& system, double dx,
                            double dy);

}  // namespace devhost
