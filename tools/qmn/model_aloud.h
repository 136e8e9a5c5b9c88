// A model from whatever menu file is named, with its errors told. For subcommands that take source
// and compiled files alike.
#pragma once

#include <string>

#include "tools/qmn/qmn_tool.h"

class TMenuSystem;

// By the name; without a telling one by the first bytes, the marker of a wide string or the length
// of the magic.
bool IsCompiledMenu(const std::string& name, const std::string& bytes);

// False after an error. The system is then what the module would have: empty for a source, what was
// read until then for a compiled file.
bool ModelOfBytes(const std::string& name, std::string bytes, unsigned page,
                  const QmnStreams& streams, TMenuSystem& system);

// An exit code.
int ReadModelAloud(const std::string& name, unsigned page, const QmnStreams& streams,
                   TMenuSystem& system);
