// Where the scanner's and the parser's complaints go. The host prints them as FormatSyntaxError
// words them; a tool may show them in its own way.
#pragma once

#include "kernel/twcstring.h"

class SourceMessages {
 public:
  virtual ~SourceMessages() = default;
  virtual void ReportSyntaxError(const wchar_t* text, int line) = 0;
};

// " \n语法错误，第12行: text", with no newline at the end.
TWCString FormatSyntaxError(const wchar_t* text, int line);
