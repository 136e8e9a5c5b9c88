// The inside of one menu line: "[label]command" into label and command of an item.
#pragma once

#include <string_view>

class AnsiText;
class TMenuItem;

// `text` begins with its '['. Without a ']' the item stays as it is.
void ParseMenuLine(std::wstring_view text, TMenuItem& item);
// The same from the bytes of the source.
void ParseMenuLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item);
