// Files along the host's support path. The one place of the product that searches for them.
#pragma once

#include "kernel/twcstring.h"

namespace qvx {

// True when the file is there; `path` then gets its full path and is otherwise left as it was.
bool FindFile(const wchar_t* name, TWCString& path);
bool FindFile(const wchar_t* name);
// The host's own search, which also knows folders that the product does not ask for.
bool FindHostFile(const wchar_t* name, TWCString& path);

// As FindFile, for those whom tests give another search.
using FindFileFunction = bool (*)(const wchar_t* name, TWCString& path);

}  // namespace qvx
