// Lexical parts of play scripts: words, quoted text, error messages. Used by the parser and by all
// messages to the user.
#pragma once

#include <string>
#include <vector>

namespace devhost {

struct ScriptError {
  int line = 0;
  int column = 0;  // counted in bytes from 1
  std::string message;
};

struct ScriptWord {
  std::string text;  // without quotes and escapes
  bool quoted = false;
  int column = 0;
};

// Splits a line into words, up to a comment. False with column and message for an open quote, an
// unknown escape, or text next to a quote.
bool SplitScriptLine(const std::string& line, std::vector<ScriptWord>* words, ScriptError* error);

// "file:line:column: error: message"
std::string ScriptErrorText(const std::string& file, const ScriptError& error);

// Text as it is written in a script.
std::string QuotedForScript(const std::string& text);

}  // namespace devhost
