// Where a pane of the status bar is, by the name that a play script calls it: the name of its
// class, or the text that it shows.
#pragma once

#include <string>

#include "ground/plain_types.h"

namespace devhost {

// What went wrong, or nothing and the middle of the pane on the screen.
std::string PlaceOfPane(const std::string& name, POINT* out);

}  // namespace devhost
