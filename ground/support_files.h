// Files along the host's support path. The product searches for them only here.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// True when the file exists; `path` then gets its full path and is otherwise unchanged.
bool FindFile(const wchar_t* name, TWCString& path);
bool FindFile(const wchar_t* name);
// The host's own search, which covers folders that FindFile does not.
bool FindHostFile(const wchar_t* name, TWCString& path);

// The type of FindFile, for functions that take the search as a parameter.
using FindFileFunction = bool (*)(const wchar_t* name, TWCString& path);

}  // namespace qvx
