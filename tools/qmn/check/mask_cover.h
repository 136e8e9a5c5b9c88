// Which of the masks so far takes every object that a further one takes. Types and layers are
// compared without case, with the wild cards of the host.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "tools/qmn/check/lint_tree.h"

struct MaskGroup {
  int code;
  bool isText;
  std::string value;  // folded text, or the number
};

// The groups that count: the first and the last.
using EffectiveMask = std::vector<MaskGroup>;
EffectiveMask MaskOf(const SourceText& source, const LintBlock& block);

class MaskCover {
 public:
  // The first block whose mask is the same or wider; null for none.
  const LintBlock* Find(const EffectiveMask& mask);
  void Add(const EffectiveMask& mask, const LintBlock* block);

 private:
  struct Pattern {
    EffectiveMask mask;
    const LintBlock* block;
  };

  const LintBlock* Same(const EffectiveMask& mask) const;

  std::unordered_map<std::string, const LintBlock*> m_masks;
  std::vector<Pattern> m_patterns;  // those with wild cards, which no key finds
  // Comparisons with patterns that are left; a file with that many blocks is not read by anybody.
  int m_budget = 4'000'000;
};

// Whether the first wild card pattern takes all that the second one takes; false in doubt.
bool IsWiderPattern(const std::string& wide, const std::string& narrow);
