#include "devhost/core/host/command_list.h"

#include <set>

#include "devhost/core/base/text_case.h"
#include "devhost/core/base/utf8.h"
#include "devhost/core/commands/command_stack.h"
#include "devhost/core/documents/document.h"
#include "devhost/core/lisp/lisp_calls.h"

namespace devhost {

std::string ListOfCommands(const CommandStack& commands, const Document& document) {
  const std::wstring typed = L"C:";  // a function that is also a command
  std::set<std::wstring> names, functions;
  for (const Command& command : commands.All()) {
    names.insert(UpperCase(command.globalName));
    names.insert(UpperCase(command.localName));
  }
  for (const auto& [name, function] : document.lispFunctions) {
    functions.insert(name);
    if (name.starts_with(typed)) names.insert(name.substr(typed.size()));
  }
  for (const wchar_t* form : EvaluatorForms()) functions.insert(form);
  std::string list = "# commands, and LISP functions in parentheses\n";
  for (const std::wstring& name : names)
    if (!name.empty()) list += Utf8(name) + "\n";
  for (const std::wstring& name : functions) list += "(" + Utf8(name) + ")\n";
  return list;
}

}  // namespace devhost
