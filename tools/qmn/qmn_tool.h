// The command line tool `qmn` without its process: arguments and streams in, exit code out.
// main.cpp passes the real ones, tests their own. Each subcommand has its own file; option names
// and --help texts are in qmn_tool.cpp.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "qvx_version.h"
#include "tools/qmn/message.h"

constexpr char kToolVersion[] = QVX_VERSION;

enum ExitCode {
  kFine = 0,
  kFindings = 1,  // the input has problems
  kWrongUsage = 2,
  kFileTrouble = 3,  // a file could not be read or written
};

struct QmnStreams {
  std::istream& in;
  std::ostream& out;                       // data only; binary for compiled files
  std::ostream& err;                       // messages, in UTF-8
  bool colour = false;                     // of messages
  bool colourOut = false;                  // of data for reading
  Language language = Language::kEnglish;  // of messages, unless --lang says otherwise
};

// `args` are UTF-8 and start after the program's name.
int RunQmn(const std::vector<std::string>& args, const QmnStreams& streams);
