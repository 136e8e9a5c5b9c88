// What the fuzzers and the short fixed run in the tests do with one input: a menu source, a
// compiled file, and the way from source to compiled file and back. Each stops the process when a
// promise is broken; the sanitizers see the rest.
#pragma once

#include <string>

void FuzzMenuSource(const std::string& bytes);
void FuzzCompiledMenu(const std::string& bytes);
