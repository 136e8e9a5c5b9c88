// One line of a menu back into the text behind its '[': the reverse of the line parser and of the
// passes. It leaves alone what no source line can say; whoever calls compiles the whole and sees.
#pragma once

#include <string>
#include <string_view>

class TMenuItem;

// How much room a line leaves. Lines that are too long in their plain form are tried tighter.
enum class LineForm {
  kPlain,
  kTight,        // an ESC as itself and not as "^C"; no ';' at the end that isn't needed
  kUnsheltered,  // and a label without the blank that only some neighbours make necessary
};

// A command as it is written. It may be ended by one ';' more, and has to be when IsEndNeeded.
std::wstring WrittenCommand(std::wstring_view command, LineForm form);
bool IsEndNeeded(std::wstring_view written);

// `closes` is the number of sub-menus whose last line this is.
std::wstring WrittenLabel(const TMenuItem& item, int closes, LineForm form);
