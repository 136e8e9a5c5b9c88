// The first step of the filter: dragging the border between tiled viewports of model space.
#pragma once

#include "ground/plain_types.h"

namespace qvx {

class FilterHost;

// True when the drag took the message.
bool StepViewportResize(FilterHost& host, const MSG& message);

}  // namespace qvx
