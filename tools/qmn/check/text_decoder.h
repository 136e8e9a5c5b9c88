// Decodes a source one character at a time: size in bytes, code, display width. The engine decodes
// whole tokens; positions and snippets need the bytes of each character.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

constexpr unsigned kUtf8Page = 65001;

struct TextChar {
  size_t size = 1;    // in bytes
  unsigned code = 0;  // U+FFFD for a byte that is no character of the page
  bool isValid = true;
};

class TextDecoder {
 public:
  explicit TextDecoder(unsigned page) : m_page(page) {}
  TextChar Next(std::string_view text, size_t at);

 private:
  TextChar Pair(std::string_view pair);
  TextChar Single(char byte);

  unsigned m_page;
  std::vector<uint16_t> m_pairs;  // by the two bytes; 0 not decoded yet, U+FFFD not one character
  std::array<uint16_t, 128> m_singles{};
};

// Accepts only whole, shortest-form sequences without surrogates.
TextChar NextUtf8(std::string_view text, size_t at);

// Terminal columns: 2 for East Asian wide characters, 0 for combining ones.
int DisplayWidth(unsigned code);
