// Lines of the product's text files.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// The line at `at`, without its end; moves `at` to the next one. A line of more than 255 characters
// is returned in pieces.
TWCString TakeLine(const TWCString& text, int& at);

}  // namespace qvx
