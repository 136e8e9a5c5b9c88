// Loads the model of any menu file by name and reports its errors. For subcommands that accept
// source and compiled files.
#pragma once

#include <string>

#include "tools/qmn/qmn_tool.h"

class TMenuSystem;

// Decided by the extension; for other names by the first bytes: the marker of a wide string or the
// length of the magic.
bool IsCompiledMenu(const std::string& name, const std::string& bytes);

// False after an error. The system is then what the module would have: empty for a source, the part
// read before the error for a compiled file.
bool ModelOfBytes(const std::string& name, std::string bytes, unsigned page,
                  const QmnStreams& streams, TMenuSystem& system);

// Returns an exit code.
int ReadModelAloud(const std::string& name, unsigned page, const QmnStreams& streams,
                   TMenuSystem& system);
