// Wrong usage in plain words.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "tools/qmn/message.h"

// What is wrong with the command line, with the nearest name where one was mistyped.
Message ExplainUsage(const CLI::App& app, const CLI::ParseError& error);
// The command that was parsed, null for none.
const CLI::App* CommandOf(const CLI::App& app);
// The name that differs in at most two characters; empty for none.
std::string NearestName(const std::string& word, const std::vector<std::string>& names);
