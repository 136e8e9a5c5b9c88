// What reading the tip file asks of the system.
#pragma once

#include <cstdio>
#include <string>

namespace qvx {

// Whether a byte begins a character of two bytes in the ANSI code page.
bool IsLeadByte(int byte);

// Time of the last change of an open file, in local time and in the form of ctime; empty if
// unknown.
std::string LastChangeOf(std::FILE* file);

}  // namespace qvx
