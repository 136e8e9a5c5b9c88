// The list of commands and LISP functions that exist, as `devhost --list-commands` prints it: one
// name per line, a function in parentheses; '#' begins a comment.
#pragma once

#include <string>

#include "tools/qmn/check/check_settings.h"

KnownNames ReadCommandList(const std::string& text);
