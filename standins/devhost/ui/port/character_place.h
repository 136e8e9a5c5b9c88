// The place of a character in the focused edit control of a thread.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace devhost {

// The left end of the character at `position` (0 is the first), or, for the text's length, the end
// of the text; in the middle of its line, in screen coordinates. Returns the error, or nothing.
std::string FindCharacterPoint(DWORD thread, int position, POINT* out);

}  // namespace devhost
