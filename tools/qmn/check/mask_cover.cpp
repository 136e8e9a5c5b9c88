#include "tools/qmn/check/mask_cover.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tools/qmn/check/names.h"

namespace {

constexpr char kOthers[] = "#@.~[],`";  // wild cards that are only compared literally

std::string KeyOf(const MaskGroup& group) {
  return std::to_string(group.code) + (group.isText ? '"' : '=') + group.value + '\n';
}

std::string KeyOf(const EffectiveMask& mask) {
  std::string key;
  for (const MaskGroup& group : mask) key += KeyOf(group);
  return key;
}

bool HasStar(const MaskGroup& group) {
  return group.isText && group.value.find_first_of("*?") != std::string::npos;
}

bool IsWider(const MaskGroup& wide, const MaskGroup& narrow) {
  if (wide.code != narrow.code || wide.isText != narrow.isText) return false;
  return wide.value == narrow.value || (wide.isText && IsWiderPattern(wide.value, narrow.value));
}

// True when each group of the wide mask is implied by some group of the narrow one. Every object
// has a type, so "*" is always implied.
bool IsWider(const EffectiveMask& wide, const EffectiveMask& narrow) {
  return std::all_of(wide.begin(), wide.end(), [&narrow](const MaskGroup& group) {
    if (group.code == 0 && group.value == "*") return true;
    return std::any_of(narrow.begin(), narrow.end(),
                       [&group](const MaskGroup& other) { return IsWider(group, other); });
  });
}

// Gives equal numbers the same text, however they are written.
std::string RealText(const std::string& number) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", std::strtod(number.c_str(), nullptr));
  return text;
}

MaskGroup GroupOf(const SourceText& source, const LintGroup& group) {
  MaskGroup out{group.code.number, group.value.IsText(), {}};
  const std::string text = FoldedName(source, group.value);
  if (out.isText)
    out.value = text.substr(1, text.size() - 1 - (group.value.kind == QMN_STRING ? 1 : 0));
  else if (group.value.kind == QMN_ICON)
    out.value = std::to_string(static_cast<int16_t>(group.value.number));
  else
    out.value = RealText(text);
  return out;
}

}  // namespace

EffectiveMask MaskOf(const SourceText& source, const LintBlock& block) {
  EffectiveMask mask{GroupOf(source, block.mask.front())};
  if (block.mask.size() > 1) mask.push_back(GroupOf(source, block.mask.back()));
  return mask;
}

// A star of the wide pattern matches any part of the narrow one, including its stars; a question
// mark matches one character except a star.
bool IsWiderPattern(const std::string& wide, const std::string& narrow) {
  if (wide == narrow || wide == "*") return true;
  if (wide.find_first_of(kOthers) != std::string::npos) return false;
  if (narrow.find_first_of(kOthers) != std::string::npos) return false;
  size_t w = 0, n = 0, star = std::string::npos, back = 0;
  while (n < narrow.size()) {
    if (w < wide.size() && wide[w] == '*') {
      star = w++;
      back = n;
    } else if (w < wide.size() && (wide[w] == narrow[n] || (wide[w] == '?' && narrow[n] != '*'))) {
      ++w;
      ++n;
    } else if (star != std::string::npos) {
      w = star + 1;
      n = ++back;
    } else {
      return false;
    }
  }
  while (w < wide.size() && wide[w] == '*') ++w;
  return w == wide.size();
}

const LintBlock* MaskCover::Same(const EffectiveMask& mask) const {
  std::vector<std::string> keys{KeyOf(mask)};
  for (const MaskGroup& group : mask) keys.push_back(KeyOf(group));
  if (mask.size() == 2) keys.push_back(KeyOf(mask[1]) + KeyOf(mask[0]));
  const LintBlock* first = nullptr;
  for (const std::string& key : keys) {
    const auto found = m_masks.find(key);
    if (found != m_masks.end() && (!first || found->second < first)) first = found->second;
  }
  return first;
}

// Blocks are in one array in file order, so their addresses compare by position.
const LintBlock* MaskCover::Find(const EffectiveMask& mask) {
  const LintBlock* first = Same(mask);
  for (const Pattern& pattern : m_patterns) {
    if ((first && first < pattern.block) || m_budget-- <= 0) break;
    if (IsWider(pattern.mask, mask)) return pattern.block;
  }
  return first;
}

void MaskCover::Add(const EffectiveMask& mask, const LintBlock* block) {
  m_masks.try_emplace(KeyOf(mask), block);
  if (std::any_of(mask.begin(), mask.end(), HasStar)) m_patterns.push_back({mask, block});
}
