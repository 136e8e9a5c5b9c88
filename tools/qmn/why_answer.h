// The answer of qmn why: which block a selection gets, and what kept it from those before. The
// matching itself is the module's own; here it is asked and put into words.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "popup/object_match.h"

class TMenuSystem;

struct WhyQuestion {
  struct Part {  // so many equal objects
    std::wstring type, layer;
    int count;
  };
  std::vector<Part> parts;  // empty: nothing is selected
  bool paper = false;
  std::map<std::wstring, std::wstring> layerKeys;
  std::map<int, std::wstring> groups;  // further groups, which all objects have
};

// Both go through the blocks up to the chosen one.
void AnswerInWords(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out);
void AnswerInJson(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out);
