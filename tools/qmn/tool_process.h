// The process that runs RunQmn. win/ and native/ contain the entry points; both call RunProcess
// with arguments in UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/qmn/message.h"

struct StandardStreams {
  bool isErrorOnTerminal;  // a terminal that supports colour sequences
  bool isOutputOnTerminal;
};

// The language of a locale: "zh_CN.UTF-8" is Chinese, all that is not Chinese is English.
Language LanguageOfLocale(std::string_view name);

// Returns the exit code. An unwritable standard output is an error of its own.
int RunProcess(const std::vector<std::string>& args, StandardStreams streams, Language language);
