// Calls of the LISP functions of modules, and evaluation of expressions typed on the command line.
#pragma once

#include <span>
#include <string>

#include "devhost/core/lisp/lisp_value.h"

namespace devhost {

class Document;

// Calls a function; false if the drawing has none of that name.
bool CallLispFunction(Document& document, const std::wstring& name,
                      const std::vector<LispValue>& arguments, LispValue* result, bool* failed);

// Evaluates one expression such as (setq a 1) or (tcmdavi "x"). `error` is empty on success.
LispValue Evaluate(Document& document, const std::wstring& expression, std::wstring* error);

// The names that Evaluate knows by itself.
std::span<const wchar_t* const> EvaluatorForms();

}  // namespace devhost
