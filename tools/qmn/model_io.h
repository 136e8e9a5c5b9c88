// Bytes to a model and back, for all subcommands. Compiling refuses an unterminated comment, on
// which the module would never return.
#pragma once

#include <string>

#include "menu/menu_model.h"
#include "menu/source_messages.h"
#include "tools/qmn/code_page.h"
#include "tools/qmn/message.h"

struct CompileResult {
  bool accepted = false;
  int openCommentLine = 0;  // where an unterminated comment begins; 0 for none
};
CompileResult CompileSource(std::string source, SourceMessages& messages, TMenuSystem& system,
                            unsigned page = kUsualPage);

// Null when all was read, else the name of the exception that the module shows. The part read
// before it stays in the system.
const wchar_t* LoadBytes(const std::string& bytes, TMenuSystem& system, unsigned page = kUsualPage);
std::string SaveBytes(TMenuSystem& system);

// What an exception of that name means for the file.
Message Explain(const wchar_t* exception);
