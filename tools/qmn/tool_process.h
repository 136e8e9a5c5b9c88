// The program around RunQmn. win/ and native/ each have the entry point of their system; both call
// RunProcess with arguments in UTF-8.
#pragma once

#include <string>
#include <vector>

struct StandardStreams {
  bool isErrorOnTerminal;  // a terminal that understands colour sequences
  bool isOutputOnTerminal;
};

// The exit code. A standard output that can't be written is an error of its own.
int RunProcess(const std::vector<std::string>& args, StandardStreams streams);
