#include "tools/qmn/tool_process.h"

#include <cstdlib>
#include <iostream>

#include "tools/qmn/qmn_tool.h"

namespace {

bool WantsColour() {
  const char* no = std::getenv("NO_COLOR");
  return !no || !*no;
}

}  // namespace

int RunProcess(const std::vector<std::string>& args, StandardStreams streams) {
  std::ios::sync_with_stdio(false);
  const bool colour = WantsColour();
  const int code =
      RunQmn(args, {std::cin, std::cout, std::cerr, streams.isErrorOnTerminal && colour,
                    streams.isOutputOnTerminal && colour});
  std::cout.flush();
  return std::cout.good() || code != kFine ? code : kFileTrouble;
}
