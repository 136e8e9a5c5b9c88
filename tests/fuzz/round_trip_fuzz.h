// One iteration of the fuzzer and of the fixed run: a source is compiled, decompiled and compiled
// again, and formatted; a compiled file is decompiled or refused. Each stops the process when an
// invariant is violated.
#pragma once

#include <string>

void FuzzMenuRoundTrip(const std::string& bytes);
