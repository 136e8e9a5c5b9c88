// Edit routines of objects, as GetEditFunction gives them: on the command line, inside a command.
#pragma once

#include "dbmain.h"
#include "kernel/kernel_export.h"

// Asks for each text in turn with its present value; line breaks are typed and shown as \P. Enter
// alone keeps a text, Escape ends.
QVX_KERNEL void EditTexts(AcDbObjectId object);
// Asks for a number in metres and writes it as an elevation: +3.000, -0.450, and %%p0.000 for zero.
QVX_KERNEL void EditElevation(AcDbObjectId object);
