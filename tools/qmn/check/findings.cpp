#include "tools/qmn/check/findings.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {
bool IsBefore(const Finding& a, const Finding& b) {
  return std::tie(a.begin, a.number) < std::tie(b.begin, b.number);
}
}  // namespace

void Findings::Add(Rule rule, size_t begin, size_t end, std::string text) {
  ++(InfoOf(rule).severity == Severity::kError ? m_errors : m_warnings);
  m_kept.push_back({begin, std::max(begin, end), rule, std::move(text), m_errors + m_warnings});
  std::push_heap(m_kept.begin(), m_kept.end(), IsBefore);
  if (m_kept.size() <= m_most) return;
  std::pop_heap(m_kept.begin(), m_kept.end(), IsBefore);
  m_kept.pop_back();
}

size_t Findings::Omitted() const {
  return static_cast<size_t>(m_errors) + static_cast<size_t>(m_warnings) - m_kept.size();
}

std::vector<Finding> Findings::InOrder() const {
  std::vector<Finding> sorted = m_kept;
  std::sort(sorted.begin(), sorted.end(), IsBefore);
  return sorted;
}
