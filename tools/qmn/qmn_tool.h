// The command line tool `qmn` without its process: arguments and streams in, exit code out.
// main.cpp gives it the real ones, the tests their own. Each subcommand has a file of its own; the
// words of the command line and --help are in qmn_tool.cpp.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

enum ExitCode {
  kFine = 0,
  kFindings = 1,  // something is wrong in the input
  kWrongUsage = 2,
  kFileTrouble = 3,  // a file could not be read or written
};

struct QmnStreams {
  std::istream& in;
  std::ostream& out;       // data only; binary for compiled files
  std::ostream& err;       // messages, in UTF-8
  bool colour = false;     // of messages
  bool colourOut = false;  // of data that is written for reading
};

// `args` are UTF-8 and start behind the program's name.
int RunQmn(const std::vector<std::string>& args, const QmnStreams& streams);
