// Help on the running command: a text file maps commands to keywords of the help file.
#pragma once

#include <string>

#include "kernel/twcstring.h"

namespace qvx {

class FilterHost;

// True when help was shown; otherwise the host shows its own.
bool ShowCommandHelp(FilterHost& host, const TWCString& helpFile);

// The keyword of the first line for the command, ignoring case; empty for none. A line has the
// keyword and the command as words; one with an empty word is skipped. `map` is in the ANSI code
// page.
TWCString FindHelpKeyword(const std::string& map, const wchar_t* command);

}  // namespace qvx
