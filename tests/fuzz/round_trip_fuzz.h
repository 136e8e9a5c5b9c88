// What the fuzzer and the short fixed run do with one input for the ways round the menu language:
// a source is compiled, decompiled and compiled again, and laid out; a compiled file is decompiled
// or refused. Each stops the process when a promise is broken.
#pragma once

#include <string>

void FuzzMenuRoundTrip(const std::string& bytes);
