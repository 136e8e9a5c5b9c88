// Receives the messages of the scanner and the parser. The module prints them in the form of
// FormatSyntaxError; tools use their own form.
#pragma once

#include "kernel/twcstring.h"

class SourceMessages {
 public:
  virtual ~SourceMessages() = default;
  virtual void ReportSyntaxError(const wchar_t* text, int line) = 0;
};

// " \n语法错误，第12行: text", with no newline at the end.
TWCString FormatSyntaxError(const wchar_t* text, int line);
