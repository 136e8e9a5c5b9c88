#include "tools/qmn/message.h"

#include <unordered_map>

#include "tools/qmn/phrases.h"

namespace {

using Table = std::unordered_map<std::string_view, const char*>;

Table AllTranslations() {
  Table table;
  for (const auto& rows : {FindingPhrases(), RulePhrases(), CommandPhrases(), OptionPhrases()})
    for (const Translation& row : rows) table.emplace(row.english, row.chinese);
  return table;
}

bool IsPlace(std::string_view text, size_t at) {
  return at + 2 < text.size() && text[at] == '{' && text[at + 1] >= '0' && text[at + 1] <= '9' &&
         text[at + 2] == '}';
}

}  // namespace

const char* ChineseOf(std::string_view english) {
  static const Table table = AllTranslations();
  const auto found = table.find(english);
  return found == table.end() ? nullptr : found->second;
}

std::string Message::In(Language language) const {
  if (!m_english) return m_text;
  const char* chinese = language == Language::kChinese ? ChineseOf(m_english) : nullptr;
  const std::string_view text = chinese ? chinese : m_english;
  std::string out;
  for (size_t at = 0; at < text.size(); ++at) {
    const size_t part =
        IsPlace(text, at) ? static_cast<size_t>(text[at + 1] - '0') : m_parts.size();
    if (part >= m_parts.size()) {
      out += text[at];
      continue;
    }
    out += m_parts[part].In(language);
    at += 2;
  }
  return out;
}
