// The translation tables of the tool's texts.
#pragma once

#include <span>

#include "tools/qmn/message.h"

std::span<const Translation> FindingPhrases();  // texts of findings
std::span<const Translation> RulePhrases();     // the sentence of each rule
std::span<const Translation> CommandPhrases();  // messages of the subcommands
std::span<const Translation> OptionPhrases();   // help and usage errors

// What `qmn help` begins with.
extern const char* const kOverview;
