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

Language LanguageOfLocale(std::string_view name) {
  return name.starts_with("zh") ? Language::kChinese : Language::kEnglish;
}

int RunProcess(const std::vector<std::string>& args, StandardStreams streams, Language language) {
  std::ios::sync_with_stdio(false);
  const bool colour = WantsColour();
  const int code =
      RunQmn(args, {std::cin, std::cout, std::cerr, streams.isErrorOnTerminal && colour,
                    streams.isOutputOnTerminal && colour, language});
  std::cout.flush();
  return std::cout.good() || code != kFine ? code : kFileTrouble;
}
