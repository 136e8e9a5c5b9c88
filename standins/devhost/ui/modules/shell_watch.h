// Calls by which modules start other programs or open help go into the journal: the module's import
// table is pointed at recorders that pass each call on. The module itself is left as it is on disk.
#pragma once

#include "ground/plain_types.h"

namespace devhost {

void WatchShellCalls(HMODULE module);  // harmless for a module that imports none of them

}  // namespace devhost
