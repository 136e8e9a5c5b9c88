#include "tools/qmn/check/line_view.h"

#include <utility>

#include "tools/qmn/tool_text.h"

LineView::LineView(const CheckContext& context, const ModelLine& model, bool isPopUp,
                   bool isInPlace)
    : m_context(context), m_model(model), m_isPopUp(isPopUp), m_isInPlace(isInPlace) {
  Decode();
  m_close = m_characters.find(U']');
  m_command = HasBracket() ? m_close + 1 : m_characters.size();
  m_commandEnd = m_characters.size();
  while (m_commandEnd > m_command &&
         (m_characters[m_commandEnd - 1] == U' ' || m_characters[m_commandEnd - 1] == U'\t'))
    --m_commandEnd;
}

void LineView::Decode() {
  const LintToken& token = Source().line;
  const std::string_view bytes = std::string_view(m_context.source.Bytes()).substr(0, token.end);
  for (size_t at = token.begin; at < token.end;) {
    const TextChar next = m_context.source.PageDecoder().Next(bytes, at);
    m_characters += static_cast<char32_t>(next.code);
    m_offsets.push_back(at);
    at += next.size;
  }
  m_offsets.push_back(token.end);
}

bool LineView::SendsCommand() const {
  return !Item().IsSeparator() && !Item().m_pSubMenu && !Item().m_pSwitch && !Command().empty();
}

void LineView::AddInLabel(Rule rule, size_t first, size_t last, Message text) const {
  m_context.findings.Add(rule, m_offsets[1 + first], m_offsets[1 + last], std::move(text));
}

void LineView::AddInCommand(Rule rule, size_t first, size_t last, Message text) const {
  m_context.findings.Add(rule, m_offsets[m_command + first], m_offsets[m_command + last],
                         std::move(text));
}

void LineView::AddLabel(Rule rule, Message text) const {
  m_context.findings.Add(rule, m_offsets[0], m_offsets[HasBracket() ? m_close + 1 : 1],
                         std::move(text));
}

bool KeepsArrow(const TMenuItem& item) {
  const std::wstring_view start = TextOf(item.m_strLabel).substr(0, 2);
  return start == L"->" || start == L"<-";
}

std::string Utf8Of(std::u32string_view text) {
  std::wstring units;
  for (const char32_t c : text) units += static_cast<wchar_t>(c);
  return Utf8(units);
}

Arrow ArrowOf(std::u32string_view label) {
  if (label.substr(0, 2) == U"->") return Arrow::kOpening;
  return label.substr(0, 2) == U"<-" ? Arrow::kClosing : Arrow::kNone;
}

int PairsOf(std::u32string_view label) {
  int pairs = 0;
  for (; label.substr(0, 2) == U"<-"; label.remove_prefix(2)) ++pairs;
  return pairs;
}
