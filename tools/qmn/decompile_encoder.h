// Encodes wide text as the narrow text that decodes to it. A character that the code page
// lacks is reported, never replaced. U+FFFD is written as a byte that is no character, where
// the page has one.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

class PageEncoder {
 public:
  explicit PageEncoder(unsigned page) : m_page(page) {}
  unsigned Page() const { return m_page; }

  // Appends; false at the first character that the page lacks. Lacking() then returns it.
  bool Append(std::wstring_view wide, std::string& out);
  const std::string& Lacking() const { return m_lacking; }  // "U+0E01"

 private:
  const std::string& BytesOf(wchar_t unit);
  std::string Encode(std::wstring_view character) const;
  std::string BrokenByte() const;
  bool Refuse(std::wstring_view character);

  const unsigned m_page;
  std::unordered_map<wchar_t, std::string> m_known;  // empty for a character that the page lacks
  std::string m_lacking;
};
