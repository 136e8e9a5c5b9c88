// The product's keys in the settings store, below GetRegLocation(). Their paths are defined only
// here; each room reads and writes its own values.
#pragma once

#include "kernel/tregproperty.h"

namespace qvx {

TRegProperty UserKey(const wchar_t* folder);
TRegProperty MachineKey(const wchar_t* folder);
TRegProperty ReleaseKey();     // the user's, above the product: shared by products of one release
TRegProperty ScreenMenuKey();  // the user's folder of the screen menu

}  // namespace qvx
