// A text for the reader. The sources have it in English, with {0}, {1}... for its parts; it is
// translated when it is shown. Every phrase has a row in a translation table (phrases_*.cpp), which
// a test verifies.
//
//   findings.Add(rule, begin, end, "block '{0}' has no menu line"_say(name));
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class Language { kEnglish, kChinese };

class Message;

class Phrase {
 public:
  constexpr explicit Phrase(const char* english) : m_english(english) {}
  const char* English() const { return m_english; }
  template <class... Parts>
  Message operator()(const Parts&... parts) const;

 private:
  const char* m_english;
};

constexpr Phrase operator""_say(const char* english, size_t) { return Phrase(english); }

class Message {
 public:
  // The same in every language: a name, a number, a piece of the file.
  Message(std::string text) : m_text(std::move(text)) {}
  Message(int number) : m_text(std::to_string(number)) {}
  Message(size_t number) : m_text(std::to_string(number)) {}
  Message(Phrase phrase, std::vector<Message> parts = {})
      : m_english(phrase.English()), m_parts(std::move(parts)) {}
  Message(const char*) = delete;  // write "..."_say

  std::string In(Language language) const;
  std::string English() const { return In(Language::kEnglish); }

 private:
  const char* m_english = nullptr;  // null: m_text
  std::string m_text;
  std::vector<Message> m_parts;
};

template <class... Parts>
Message Phrase::operator()(const Parts&... parts) const {
  return Message(*this, {Message(parts)...});
}

// One row of a translation table.
struct Translation {
  const char* english;
  const char* chinese;
};
// Null for a phrase that no table has.
const char* ChineseOf(std::string_view english);
