// Names and explanations of all commands and options.
#pragma once

#include <CLI/CLI.hpp>

#include "tools/qmn/options.h"

// The page that --to names: a number or "utf-8"; 0 for none.
unsigned PageNamed(const std::string& text);

void AddCommands(CLI::App& app, Options& options, Language language);
