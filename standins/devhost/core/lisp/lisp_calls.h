// LISP functions of modules and the call that runs just now; expressions typed on the command line.
#pragma once

#include <string>

#include "devhost/core/lisp/lisp_value.h"

namespace devhost {

class Document;

// Calls a module's function; false when the drawing has none of that name.
bool CallLispFunction(Document& document, const std::wstring& name,
                      const std::vector<LispValue>& arguments, LispValue* result, bool* failed);

// Reads and runs one expression such as (setq a 1) or (tcmdavi "x"). What is wrong with it comes as
// text in `error`, empty when all went well.
LispValue Evaluate(Document& document, const std::wstring& expression, std::wstring* error);

}  // namespace devhost
