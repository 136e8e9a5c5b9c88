// Reads and sets the scale of the selected objects, or of the drawing if none is selected, by calls
// of the host and the kernel. No window. Called by the scale pane and at a change of drawing.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// Sets the scale of the selected QVX_* objects, of dimensions with their line and text; without a
// selection that of the drawing.
void SetScale(double scale);

// Sets the scale of paper space while it is current without a viewport, else the drawing's.
void SetDrawingScale(double scale);

bool HasFamilySelection();
TWCString CurrentScaleText();

}  // namespace qvx
