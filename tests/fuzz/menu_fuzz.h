// One iteration of the fuzzers and of the fixed run in the tests: a menu source, a compiled file,
// and the round trip from source to compiled file. Each stops the process when an invariant is
// violated; the sanitizers detect the rest.
#pragma once

#include <string>

void FuzzMenuSource(const std::string& bytes);
void FuzzCompiledMenu(const std::string& bytes);
