// Finds a pane of the status bar by its class name or its text, for play scripts.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace devhost {

// The middle of the pane on the screen. Returns an error message, or nothing.
std::string FindPanePoint(const std::string& name, POINT* out);

}  // namespace devhost
