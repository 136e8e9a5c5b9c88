// The characters that the dialog of special characters offers.
#pragma once

#include <span>

struct CharGroup {
  const wchar_t* name;
  const wchar_t* chars;  // one entry for each code unit; no character is in two groups
};

std::span<const CharGroup> SpecialChars();
