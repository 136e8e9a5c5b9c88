// The names that a menu may send: for tools that check menus.
#pragma once

#include <string>

namespace devhost {

class CommandStack;
class Document;

// UTF-8, one name per line in alphabetical order: the registered commands, and in parentheses the
// LISP functions that the drawing can evaluate.
std::string ListOfCommands(const CommandStack& commands, const Document& document);

}  // namespace devhost
