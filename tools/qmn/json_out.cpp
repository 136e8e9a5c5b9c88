#include "tools/qmn/json_out.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <ostream>
#include <string>

#include "tools/qmn/tool_text.h"

namespace {

const char* ShortEscape(char c) {
  switch (c) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\b':
      return "\\b";
    case '\f':
      return "\\f";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return nullptr;
  }
}

void AppendEscaped(std::string& out, char c) {
  if (const char* escape = ShortEscape(c)) {
    out += escape;
  } else if (static_cast<unsigned char>(c) < 0x20) {
    char code[8];
    std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
    out += code;
  } else {
    out += c;
  }
}

}  // namespace

// Deep dumps are mostly indentation, so it is written in large pieces.
void PutIndent(std::ostream& out, size_t levels) {
  static const std::string blanks(4096, ' ');
  for (size_t left = 2 * levels; left;) {
    const size_t part = std::min(left, blanks.size());
    out.write(blanks.data(), static_cast<std::streamsize>(part));
    left -= part;
  }
}

void JsonOut::NewLine() {
  m_out << '\n';
  PutIndent(m_out, m_levels.size());
}

void JsonOut::Element() {
  if (m_keyed) {
    m_keyed = false;
    return;
  }
  if (m_levels.empty()) return;
  if (m_levels.back().any) m_out << ',';
  m_levels.back().any = true;
  NewLine();
}

void JsonOut::Open(char open, char close) {
  Element();
  m_out << open;
  m_levels.push_back({close});
}

void JsonOut::Close() {
  const Level level = m_levels.back();
  m_levels.pop_back();
  if (level.any) NewLine();
  m_out << level.close;
}

void JsonOut::Key(std::string_view name) {
  Element();
  m_out << '"' << name << "\": ";
  m_keyed = true;
}

void JsonOut::Text(std::wstring_view units) {
  Element();
  std::string text = "\"";
  for (const char c : Utf8(units)) AppendEscaped(text, c);
  m_out << text << '"';
}

void JsonOut::Integer(long long value) {
  Element();
  m_out << value;
}

void JsonOut::Real(double value) {
  if (!std::isfinite(value)) return Null();
  Element();
  char text[40];
  const std::to_chars_result end = std::to_chars(text, text + sizeof text, value);
  m_out << std::string_view(text, static_cast<size_t>(end.ptr - text));
}

void JsonOut::Null() {
  Element();
  m_out << "null";
}

void JsonOut::End() { m_out << '\n'; }
