// Writes one line of a menu as the text after its '[': the reverse of the line parser
// and of the passes. Does not detect what no source line can express; the caller
// compiles the result and compares.
#pragma once

#include <string>
#include <string_view>

class TMenuItem;

// How compactly a line is written. Lines that exceed the limit in the plain form are tried in the
// next one.
enum class LineForm {
  kPlain,
  kTight,        // an ESC as the byte instead of "^C"; no optional ';' at the end
  kUnsheltered,  // also without the blank before a label that only some neighbours need
};

// A command as it is written in a source. One more ';' may follow, and must when IsEndNeeded.
std::wstring WrittenCommand(std::wstring_view command, LineForm form);
bool IsEndNeeded(std::wstring_view written);

// `closes` is the number of sub-menus that end with this line.
std::wstring WrittenLabel(const TMenuItem& item, int closes, LineForm form);
