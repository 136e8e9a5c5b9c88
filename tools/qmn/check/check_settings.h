// What a run of `qmn check` knows besides the source: the rules that are wanted, the bitmaps of the
// icon library, and the commands and functions that exist.
#pragma once

#include <memory>
#include <set>
#include <string>

#include "tools/qmn/check/rules.h"

// Names in lower case.
using NameSet = std::set<std::string>;

struct KnownNames {
  NameSet commands;
  NameSet functions;
};

struct CheckSettings {
  RuleSet hidden;                           // rules that are not reported
  std::shared_ptr<const NameSet> images;    // null: images are not checked
  std::shared_ptr<const KnownNames> known;  // null: commands and functions are not checked

  bool Hides(Rule rule) const { return hidden[static_cast<size_t>(rule)]; }
};
