#include "tools/qmn/settings_file.h"

#include <algorithm>
#include <variant>

#include "tools/qmn/code_page.h"
#include "tools/qmn/encoding.h"

namespace {

using Value = std::variant<unsigned, std::string, std::vector<std::string>>;

bool IsKeyCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '_';
}

class SettingsReader {
 public:
  SettingsReader(const std::string& text, FileSettings& out) : m_text(text), m_out(out) {}

  std::optional<SettingsError> Read() {
    try {
      for (SkipBlank(true); !IsEnd(); SkipBlank(true)) Setting();
      return std::nullopt;
    } catch (SettingsError& error) {
      return std::move(error);
    }
  }

 private:
  [[noreturn]] void Fail(const Message& text) const { throw SettingsError{m_line, text}; }

  bool IsEnd() const { return m_at == m_text.size(); }
  char Here() const { return IsEnd() ? '\n' : m_text[m_at]; }
  char Take() {
    const char c = m_text[m_at++];
    if (c == '\n') ++m_line;
    return c;
  }
  // Blanks and a comment; line ends too when `overLines`.
  void SkipBlank(bool overLines) {
    while (!IsEnd()) {
      const char c = Here();
      if (c == '#')
        while (!IsEnd() && Here() != '\n') ++m_at;
      else if (c == ' ' || c == '\t' || c == '\r' || (c == '\n' && overLines))
        Take();
      else
        return;
    }
  }

  void Setting() {
    if (Here() == '[') Fail("there are no sections here; a line is KEY = VALUE"_say);
    const size_t begin = m_at;
    while (!IsEnd() && IsKeyCharacter(Here())) ++m_at;
    const std::string key = m_text.substr(begin, m_at - begin);
    SkipBlank(false);
    if (key.empty() || Here() != '=') Fail("expected KEY = VALUE"_say);
    ++m_at;
    SkipBlank(false);
    Store(key, AnyValue());
    SkipBlank(false);
    if (Here() != '\n') Fail("expected the end of the line behind the value"_say);
  }

  Value AnyValue() {
    const char c = Here();
    if (c == '"' || c == '\'') return Text();
    if (c == '[') return List();
    if (c >= '0' && c <= '9') return Number();
    Fail("expected a number, a text in quotes, or a list in [ ]"_say);
  }

  unsigned Number() {
    unsigned number = 0;
    for (; Here() >= '0' && Here() <= '9'; ++m_at)
      number = std::min(number * 10 + static_cast<unsigned>(Here() - '0'), 1000000u);
    return number;
  }

  std::string Text() {
    const char quote = Take();
    std::string text;
    while (Here() != quote) {
      if (Here() == '\n') Fail("the text does not end in its line"_say);
      const bool isEscape = Here() == '\\' && quote == '"';
      if (isEscape) ++m_at;
      if (isEscape && Here() != '\\' && Here() != '"')
        Fail("a '\\' is written twice between \" \", or once between ' '"_say);
      text += Take();
    }
    ++m_at;
    return text;
  }

  std::vector<std::string> List() {
    std::vector<std::string> texts;
    ++m_at;
    for (;;) {
      SkipBlank(true);
      if (Here() == ']') break;
      if (Here() != '"' && Here() != '\'') Fail("expected a text in quotes or ']'"_say);
      texts.push_back(Text());
      SkipBlank(true);
      if (Here() == ',')
        ++m_at;
      else if (Here() != ']')
        Fail("expected ',' or ']'"_say);
    }
    ++m_at;
    return texts;
  }

  template <class T>
  const T& As(const std::string& key, const Value& value, Phrase wanted) const {
    const T* held = std::get_if<T>(&value);
    if (!held) Fail(wanted(key));
    return *held;
  }
  const std::string& TextOf(const std::string& key, const Value& value) const {
    return As<std::string>(key, value, "the value of {0} is a text in quotes"_say);
  }
  const std::vector<std::string>& ListOf(const std::string& key, const Value& value) const {
    return As<std::vector<std::string>>(key, value, "the value of {0} is a list: [\"QMN052\"]"_say);
  }

  void Store(const std::string& key, const Value& value) {
    if (key == "codepage") return Page(key, value);
    if (key == "fail-on") return FailOn(TextOf(key, value));
    if (key == "icons") return void(m_out.icons = TextOf(key, value));
    if (key == "commands") return void(m_out.commands = TextOf(key, value));
    if (key == "select") return void(m_out.select = ListOf(key, value));
    if (key == "ignore") return void(m_out.ignore = ListOf(key, value));
    Fail(
        "there is no setting '{0}'; there are codepage, fail-on, icons, commands, select and ignore"_say(
            key));
  }
  void Page(const std::string& key, const Value& value) {
    const unsigned page = As<unsigned>(key, value, "the value of {0} is a number"_say);
    if (!IsKnownPage(page)) Fail("there is no code page {0} here"_say(static_cast<int>(page)));
    m_out.page = page;
  }
  void FailOn(const std::string& word) {
    if (word != "error" && word != "warning")
      Fail("the value of fail-on is \"error\" or \"warning\""_say);
    m_out.failOnWarning = word == "warning";
  }

  const std::string& m_text;
  FileSettings& m_out;
  size_t m_at = 0;
  int m_line = 1;
};

}  // namespace

std::optional<SettingsError> ReadSettings(const std::string& text, FileSettings& out) {
  std::string plain = text;
  RemoveUtf8Mark(plain);
  return SettingsReader(plain, out).Read();
}
