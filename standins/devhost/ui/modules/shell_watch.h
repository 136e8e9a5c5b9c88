// Records calls of modules that start programs or open help: entries of the module's import table
// are replaced by functions that record and pass on the call.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

void WatchShellCalls(HMODULE module);  // no effect on a module without such imports

}  // namespace devhost
