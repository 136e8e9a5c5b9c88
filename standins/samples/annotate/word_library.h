// The word library: words of architectural drawings in groups, in a text file that users extend.
//
//   ; a comment
//   [房间名称]
//   客厅
//
// Lines before the first group are ignored, like empty lines. Blanks around a line do not count. A
// group that occurs again continues the first one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct WordGroup {
  std::wstring name;
  std::vector<std::wstring> words;  // each once, in the order of the file
};

std::vector<WordGroup> WordsOf(std::wstring_view text);

// The text with the word at the end of the group, which is added if it is missing; all other lines
// are as before. Unchanged if the word is empty, begins with "[" or ";", has a line break, or is in
// the group.
std::wstring WithWord(std::wstring_view text, std::wstring_view group, std::wstring_view word);
