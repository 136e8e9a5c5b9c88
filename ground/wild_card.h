// Wild cards of the host's selection filters, compiled once and matched against many texts: * any
// text, ? any character, # a digit, @ a letter, . neither, [..] one of, [~..] none of, ~ at the
// start negates the pattern, ` makes the next character literal, commas separate alternatives. Case
// is ignored. A class that is not closed is a literal bracket.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Upper case for matching; the same on every build and in every locale.
wchar_t MatchCase(wchar_t unit);
std::wstring MatchCase(std::wstring_view text);

class WildCard {
 public:
  explicit WildCard(std::wstring_view patterns);
  WildCard(WildCard&&) = default;
  WildCard& operator=(WildCard&&) = default;

  // `text` must have passed MatchCase.
  bool Matches(std::wstring_view text) const;

 private:
  enum class Kind : unsigned char { kLiteral, kAny, kDigit, kLetter, kOther, kClass, kStar };
  struct Step {
    Kind kind;
    wchar_t unit;                  // of a literal
    std::wstring_view characters;  // of a class, without its brackets
  };
  struct Pattern {
    bool negated = false;
    bool plain = true;       // literals only
    std::wstring_view text;  // of a plain one
    std::vector<Step> steps;
  };

  void Append(std::wstring_view pattern);
  Step Read(std::wstring_view pattern, size_t& at) const;
  static bool Fits(const Step& step, wchar_t unit);
  static bool Fits(const Pattern& pattern, std::wstring_view text);

  // The patterns have views into this text; a vector, so that a move keeps them valid.
  std::vector<wchar_t> m_text;
  std::vector<Pattern> m_patterns;
};
