// Whole files in and out by the names of the command line. Written files appear under their name
// only when they are whole.
#pragma once

#include <string>

#include "tools/qmn/qmn_tool.h"

inline bool IsStandardStream(const std::string& name) { return name == "-"; }

// False when it can't be read, a folder for instance.
bool ReadInput(const std::string& name, const QmnStreams& streams, std::string& bytes);
// False when it can't be written; what stood under the name is then still there.
bool WriteOutput(const std::string& name, const QmnStreams& streams, const std::string& bytes);

// The name with another extension (".qmc"); a name without one gets it.
std::string WithExtension(const std::string& name, const char* extension);
// In lower case, with its dot.
std::string ExtensionOf(const std::string& name);
bool IsSameFile(const std::string& a, const std::string& b);
