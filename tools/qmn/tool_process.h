// The process that runs RunQmn. win/ and native/ contain the entry points; both call RunProcess
// with arguments in UTF-8.
#pragma once

#include <string>
#include <vector>

struct StandardStreams {
  bool isErrorOnTerminal;  // a terminal that supports colour sequences
  bool isOutputOnTerminal;
};

// Returns the exit code. An unwritable standard output is an error of its own.
int RunProcess(const std::vector<std::string>& args, StandardStreams streams);
