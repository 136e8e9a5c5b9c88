// The findings of one file. Any number may be added, in any order; only the first ones by position
// are kept and the others counted, which limits the memory for a file of garbage.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/check/rules.h"

struct Finding {
  size_t begin = 0, end = 0;  // bytes of the source with its line ends folded
  Rule rule = Rule::kSyntax;
  std::string text;
  int number = 0;  // order of arrival
};

class Findings {
 public:
  static constexpr size_t kMostKept = 1000;

  explicit Findings(size_t most = kMostKept) : m_most(most) {}

  void Add(Rule rule, size_t begin, size_t end, std::string text);
  int Errors() const { return m_errors; }
  int Warnings() const { return m_warnings; }
  size_t Omitted() const;
  std::vector<Finding> InOrder() const;  // by position, then by arrival

 private:
  size_t m_most;
  int m_errors = 0;
  int m_warnings = 0;
  std::vector<Finding> m_kept;  // a heap, the last by position in front
};
