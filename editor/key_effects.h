// What the keys of the key table do.
#pragma once

#include "editor/key_table.h"

namespace qvx {

class FilterHost;

// False when an effect that may fail did not take place.
bool CarryOut(KeyEffect effect, FilterHost& host, const MSG& message);

}  // namespace qvx
