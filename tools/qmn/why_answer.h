// The answer of qmn why: which block a selection gets, and why the blocks before it do not fit. The
// matching is the module's own; here it is called and described.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "popup/object_match.h"

class TMenuSystem;

struct WhyQuestion {
  struct Part {  // `count` equal objects
    std::wstring type, layer;
    int count;
  };
  std::vector<Part> parts;  // empty: nothing is selected
  bool paper = false;
  std::map<std::wstring, std::wstring> layerKeys;
  std::map<int, std::wstring> groups;  // additional groups, the same for all objects
};

// Both list the blocks up to the chosen one.
void AnswerInWords(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out);
void AnswerInJson(const TMenuSystem& system, const WhyQuestion& question, std::ostream& out);
