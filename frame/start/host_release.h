// What depends on the host's release number: the values that record a first start, and the title of
// the host's frame.
#pragma once

#include "kernel/twcstring.h"

// Sets the names of the first-start values of a release, in the order in which they are read and
// written. Returns their number, 1 or 2.
int FirstStartValueNames(double release, const wchar_t* names[2]);

// The new title of the host's frame. The host's name is the frame's present text up to the first
// hyphen, without the blank before it; without a hyphen it follows from the release. Without a
// title the result starts with " For ".
TWCString FrameTitle(const wchar_t* title, const wchar_t* frameText, double release);
