#include "menu/source_messages.h"

#include <string>

TWCString FormatSyntaxError(const wchar_t* text, int line) {
  TWCString message(L" \n语法错误，第");
  message += std::to_wstring(line).c_str();
  message += L"行: ";
  message += text;
  return message;
}
