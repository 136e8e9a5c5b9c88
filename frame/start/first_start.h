// The list of modules that have to be registered for demand loading once per host release: what it
// says, and whether this release has been through it.
#pragma once

#include "kernel/twcstring.h"

// True when this host release has started the product before. Every value asked is also written, so
// the next start finds it; a user who may not write the machine's key goes through the list at
// every start, which is accepted.
bool HasStartedBefore(double release);

// The names on the list (first word of each line) that the support path knows, in file order and as
// written; an unreadable list has none.
void ReadFirstStartModules(const wchar_t* listPath, TWCStringList& names);

// The same for the list where the support path has it.
void FindFirstStartModules(TWCStringList& names);

// Loads the modules of the list, so that the host registers them, unless this release has been
// through it. Those that are loaded already are left alone.
void RunFirstStartModules();
