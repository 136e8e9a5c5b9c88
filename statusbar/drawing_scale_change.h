// Setting and telling the scale over the host's and the kernel's calls: of the selected objects, or
// with none selected of the drawing. No window; called by the scale pane and at a change of
// drawing.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// Objects of the family that are selected get the scale, dimensions with their line and text;
// otherwise the drawing does.
void SetScale(double scale);

// The sheet's while the user works in paper space itself, else the drawing's own.
void SetDrawingScale(double scale);

bool HasFamilySelection();
TWCString CurrentScaleText();

}  // namespace qvx
