// A menu source as it was written, including its errors; each part has its position. Unreadable
// parts are left out.
#pragma once

#include <optional>
#include <vector>

#include "tools/qmn/check/lint_tokens.h"

struct LintLine {
  std::optional<LintToken> icon;
  LintToken line;
};

struct LintGroup {
  LintToken code, value;
};

struct LintBlock {
  std::optional<LintToken> name;
  std::vector<LintGroup> mask;
  bool isMaskBroken = false;
  std::vector<LintLine> lines;
};

struct LintState {
  LintToken value, icon, label;
};

struct LintSwitch {
  LintToken name;
  std::vector<LintToken> functions;  // get and set
  std::vector<LintState> states;
};

struct LintResource {
  LintToken name;
  std::optional<LintToken> image;
};

struct LintTree {
  std::vector<LintBlock> blocks;
  std::vector<LintSwitch> switches;
  std::vector<LintResource> resources;
};
