// What depends on the host's release number: the values that record a first start, and the frame's
// title. Plain functions over the number.
#pragma once

#include "kernel/twcstring.h"

// Names of the first-start values of a release, in the order in which they are read and written;
// one or two. Returns how many.
int FirstStartValueNames(double release, const wchar_t* names[2]);

// The title that the host frame gets. With a hyphen in the frame's present text, what stands ahead
// of it (less the blank) names the host; without one the release does. An absent title leaves " For
// ...".
TWCString FrameTitle(const wchar_t* title, const wchar_t* frameText, double release);
