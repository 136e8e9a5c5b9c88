// Parses "[label]command" into label and command of a line.
#pragma once

#include <string_view>

class AnsiText;
class TMenuItem;

// `text` begins with '['. Without a ']' the item is not changed.
void ParseMenuLine(std::wstring_view text, TMenuItem& item);
// The same from the bytes of the source.
void ParseMenuLine(std::string_view narrow, AnsiText& ansi, TMenuItem& item);
