// The host's selected objects for the selection preview.
#pragma once

#include <memory>

#include "editor/preview_host.h"

namespace qvx {

// The objects with grips, or without any the picked ones; an empty set when nothing is selected.
// Null when the host refuses. The set is the caller's.
std::unique_ptr<SelectedObjects> ReadSelectedObjects();

}  // namespace qvx
