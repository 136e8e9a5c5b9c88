// Loads the model of any menu file by name and reports its errors. For subcommands that accept
// source and compiled files.
#pragma once

#include <string>

#include "tools/qmn/menu_source.h"
#include "tools/qmn/qmn_tool.h"

class TMenuSystem;

// Decided by the extension; for other names by the first bytes: the marker of a wide string or the
// length of the magic.
bool IsCompiledMenu(const std::string& name, const std::string& bytes);

// Compiles a source whose findings have been reported. False when the engine refuses it all the
// same.
bool CompileAloud(const MenuSource& source, const QmnStreams& streams, TMenuSystem& system);

// Returns an exit code. After an error the system is what the module would have: empty for a
// source, the part read before the error for a compiled file.
int ModelOfBytes(const std::string& name, std::string bytes, const SourceOptions& options,
                 const QmnStreams& streams, TMenuSystem& system);

int ReadModelAloud(const std::string& name, const SourceOptions& options, const QmnStreams& streams,
                   TMenuSystem& system);
