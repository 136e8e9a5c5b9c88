// Finds an earlier mask that fits every object that a later one fits. Types and layers are compared
// case-insensitively, with the host's wild cards.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "tools/qmn/check/lint_tree.h"

struct MaskGroup {
  int code;
  bool isText;
  std::string value;  // case-folded text, or the number
};

// The groups that take effect: the first and the last.
using EffectiveMask = std::vector<MaskGroup>;
EffectiveMask MaskOf(const SourceText& source, const LintBlock& block);

class MaskCover {
 public:
  // The first block whose mask is equal or wider; null for none.
  const LintBlock* Find(const EffectiveMask& mask);
  void Add(const EffectiveMask& mask, const LintBlock* block);

 private:
  struct Pattern {
    EffectiveMask mask;
    const LintBlock* block;
  };

  const LintBlock* Same(const EffectiveMask& mask) const;

  std::unordered_map<std::string, const LintBlock*> m_masks;
  std::vector<Pattern> m_patterns;  // patterns with wild cards, which the key lookup can't find
  // Pattern comparisons left before the search gives up. Bounds the time for files
  // with very many blocks.
  int m_budget = 4'000'000;
};

// True when the first pattern matches everything that the second one matches; false in doubt.
bool IsWiderPattern(const std::string& wide, const std::string& narrow);
