// Bytes into a model and back, for all subcommands. Compiling stops at a comment that never ends,
// which the module would read on for ever.
#pragma once

#include <string>

#include "menu/menu_model.h"
#include "menu/source_messages.h"
#include "tools/qmn/code_page.h"

struct CompileResult {
  bool accepted = false;
  int openCommentLine = 0;  // where a comment that never ends was opened; 0 without one
};
CompileResult CompileSource(std::string source, SourceMessages& messages, TMenuSystem& system,
                            unsigned page = kUsualPage);

// Null when all was read, else the name of the exception that the module shows. What was read until
// then stays in the system.
const wchar_t* LoadBytes(const std::string& bytes, TMenuSystem& system, unsigned page = kUsualPage);
std::string SaveBytes(TMenuSystem& system);

// What an exception of that name says about the file.
const char* Explain(const wchar_t* exception);
extern const char kOpenCommentText[];
