// Sources for the tests of `qmn check`, and what the check and the engine say of them.
#pragma once

#include <set>
#include <string>

#include "tests/qmn/qmn_testing.h"

// Text of the code page from UTF-8; ‹41› gives the byte 0x41, ‹3×ab› gives ababab, and
// ‹no newline› at the end takes the last newline away.
std::string MenuBytes(const std::string& utf8);

// A source around one part of it, named as in docs/menu-checks.md: lines, blocks, switches, icons;
// "file" is all there is.
std::string Framed(const std::string& part, const std::string& text);

std::set<std::string> CodesOf(const std::string& source);
// Whether the engine takes the source without a word.
bool EngineTakes(const std::string& source);
