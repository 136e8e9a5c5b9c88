// The modules that are loaded once per host release, so that the host registers them for demand
// loading: the list file, and whether it was processed for this release.
#pragma once

#include "kernel/twcstring.h"

// True when this host release has started the product before. Sets every value that it reads to 1,
// for the next start. A user without write access to the machine's key processes the list at every
// start; this is accepted.
bool HasStartedBefore(double release);

// The names in the list (first word of each line) that are found on the support path, in file order
// and unchanged; none when the file can't be read.
void ReadFirstStartModules(const wchar_t* listPath, TWCStringList& names);

// The same for the list dmload.rx on the support path.
void FindFirstStartModules(TWCStringList& names);

// Loads the modules of the list that are not loaded yet, unless it was processed for this release.
void RunFirstStartModules();
