// The findings of one file. Any number may be added, in any order; only the first ones by position
// are kept and the others counted, which limits the memory for a file of garbage.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/check/check_settings.h"
#include "tools/qmn/message.h"

class Silencing;

struct Finding {
  size_t begin = 0, end = 0;  // bytes of the source with its line ends folded
  Rule rule = Rule::kSyntax;
  Message text;
  int number = 0;  // order of arrival
};

class Findings {
 public:
  static constexpr size_t kMostKept = 1000;

  explicit Findings(size_t most = kMostKept) : m_most(most) {}

  // Drops what the settings hide and what a comment silences, from now on. Both outlive this
  // object.
  void Filter(const CheckSettings& settings, Silencing& silencing) {
    m_settings = &settings;
    m_silencing = &silencing;
  }
  void EndFilter() { m_settings = nullptr, m_silencing = nullptr; }
  void Add(Rule rule, size_t begin, size_t end, Message text);
  int Errors() const { return m_errors; }
  int Warnings() const { return m_warnings; }
  int Silenced() const { return m_silenced; }  // by a comment
  size_t Omitted() const;
  std::vector<Finding> InOrder() const;  // by position, then by arrival

 private:
  bool IsDropped(Rule rule, size_t begin);

  size_t m_most;
  const CheckSettings* m_settings = nullptr;
  Silencing* m_silencing = nullptr;
  int m_silenced = 0;
  int m_errors = 0;
  int m_warnings = 0;
  std::vector<Finding> m_kept;  // a heap, the last by position in front
};
