// The difference of two texts as a unified diff.
#pragma once

#include <iosfwd>
#include <string>

// Writes nothing when the texts are equal. A carriage return at the end of a line is not shown.
void WriteDiff(const std::string& name, const std::string& before, const std::string& after,
               std::ostream& out, bool colour);
