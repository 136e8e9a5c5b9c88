// Reads and writes whole files by the names of the command line. An output appears under its name
// only when it is complete.
#pragma once

#include <string>

#include "tools/qmn/qmn_tool.h"

inline bool IsStandardStream(const std::string& name) { return name == "-"; }

// False when it can't be read, for instance a folder.
bool ReadInput(const std::string& name, const QmnStreams& streams, std::string& bytes);
// False when it can't be written; the previous content is then unchanged.
bool WriteOutput(const std::string& name, const QmnStreams& streams, const std::string& bytes);

// The name with its extension replaced by another (".qmc"); appended when it has none.
std::string WithExtension(const std::string& name, const char* extension);
// In lower case, including the dot.
std::string ExtensionOf(const std::string& name);
bool IsSameFile(const std::string& a, const std::string& b);
