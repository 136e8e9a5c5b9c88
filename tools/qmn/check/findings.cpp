#include "tools/qmn/check/findings.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "tools/qmn/check/silencing.h"

namespace {
bool IsBefore(const Finding& a, const Finding& b) {
  return std::tie(a.begin, a.number) < std::tie(b.begin, b.number);
}
}  // namespace

bool Findings::IsDropped(Rule rule, size_t begin) {
  if (!IsIgnorable(rule)) return false;
  if (m_settings && m_settings->Hides(rule)) return true;
  if (!m_silencing || !m_silencing->Silences(rule, begin)) return false;
  ++m_silenced;
  return true;
}

void Findings::Add(Rule rule, size_t begin, size_t end, Message text) {
  if (IsDropped(rule, begin)) return;
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
