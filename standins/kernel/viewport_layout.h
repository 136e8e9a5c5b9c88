// The tiled viewports of the current drawing. For commands: the host's viewport table is written.
#pragma once

#include <vector>

#include "kernel/viewport_borders.h"

bool ReadLayout(std::vector<ViewportTile>& tiles);
// Gives the viewports with these numbers their new corners and shows them; false when the host
// refuses.
bool WriteLayout(const std::vector<ViewportTile>& tiles);
