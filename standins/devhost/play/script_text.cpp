// Words, escapes and messages of play scripts; see the header.
#include "devhost/play/script_text.h"

namespace devhost {
namespace {

// line: { blank | word | quoted | comment }
class LineReader {
 public:
  LineReader(const std::string& line, ScriptError* error) : m_line(line), m_error(error) {}

  bool Read(std::vector<ScriptWord>* words) {
    for (SkipBlanks(); m_at < m_line.size() && m_line[m_at] != '#'; SkipBlanks()) {
      ScriptWord word;
      word.column = Column();
      word.quoted = m_line[m_at] == '"';
      if (!(word.quoted ? ReadQuoted(&word.text) : ReadBare(&word.text))) return false;
      words->push_back(word);
    }
    return true;
  }

 private:
  int Column() const { return static_cast<int>(m_at) + 1; }
  bool AtBlank() const { return m_line[m_at] == ' ' || m_line[m_at] == '\t'; }

  void SkipBlanks() {
    while (m_at < m_line.size() && AtBlank()) ++m_at;
  }

  bool Fail(int column, const char* message) {
    m_error->column = column;
    m_error->message = message;
    return false;
  }

  bool ReadBare(std::string* text) {
    for (; m_at < m_line.size() && !AtBlank(); ++m_at) {
      if (m_line[m_at] == '"') return Fail(Column(), "a blank is missing before the quote");
      *text += m_line[m_at];
    }
    return true;
  }

  bool ReadQuoted(std::string* text) {
    const int opened = Column();
    for (++m_at; m_at < m_line.size() && m_line[m_at] != '"'; ++m_at) {
      if (m_line[m_at] != '\\')
        *text += m_line[m_at];
      else if (!ReadEscape(text))
        return false;
    }
    if (m_at >= m_line.size()) return Fail(opened, "this quote is never closed");
    ++m_at;
    if (m_at < m_line.size() && !AtBlank())
      return Fail(Column(), "a blank is missing after the quote");
    return true;
  }

  bool ReadEscape(std::string* text) {
    ++m_at;
    switch (m_at < m_line.size() ? m_line[m_at] : '\0') {
      case 'n':
        *text += '\n';
        return true;
      case 't':
        *text += '\t';
        return true;
      case 'e':
        *text += '\x1B';
        return true;
      case '"':
        *text += '"';
        return true;
      case '\\':
        *text += '\\';
        return true;
      default:
        return Fail(Column() - 1, "unknown escape; there are \\n \\t \\e \\\" and \\\\");
    }
  }

  const std::string& m_line;
  ScriptError* m_error;
  std::size_t m_at = 0;
};

}  // namespace

bool SplitScriptLine(const std::string& line, std::vector<ScriptWord>* words, ScriptError* error) {
  return LineReader(line, error).Read(words);
}

std::string ScriptErrorText(const std::string& file, const ScriptError& error) {
  return file + ":" + std::to_string(error.line) + ":" + std::to_string(error.column) +
         ": error: " + error.message;
}

std::string QuotedForScript(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    switch (c) {
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      case '\x1B':
        out += "\\e";
        break;
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      default:
        out += c;
    }
  }
  return out + "\"";
}

}  // namespace devhost
