// The smallest parts of a play script: the words of a line, quoted text, and the way a place and a
// text are shown in messages. Used by the script's parser and by everything that reports to a user.
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
  std::string text;  // without quotes, escapes resolved
  bool quoted = false;
  int column = 0;
};

// The words of one line, up to a comment. False, with column and message of `error` filled, for an
// open quote, an unknown escape, or text glued to a quote.
bool SplitScriptLine(const std::string& line, std::vector<ScriptWord>* words, ScriptError* error);

// "file:line:column: error: message"
std::string ScriptErrorText(const std::string& file, const ScriptError& error);

// Text as a script would have to write it.
std::string QuotedForScript(const std::string& text);

}  // namespace devhost
