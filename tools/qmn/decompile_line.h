// One line of a menu back into the text behind its '[': the reverse of the line parser and of the
// passes. It leaves alone what no source line can say; whoever calls compiles the whole and sees.
#pragma once

#include <string>
#include <string_view>

class TMenuItem;

// A command as it is written. It may be ended by one ';' more, and has to be when IsEndNeeded.
// A tight text has an ESC as itself and not as "^C"; a tight label goes without the shelter that
// only some neighbours make necessary. Both are for lines that are too long otherwise.
std::wstring WrittenCommand(std::wstring_view command, bool tight);
bool IsEndNeeded(std::wstring_view written);

// `closes` is the number of sub-menus whose last line this is.
std::wstring WrittenLabel(const TMenuItem& item, int closes, bool tight);
