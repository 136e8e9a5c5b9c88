// A menu source with its lines and characters: where a byte stands, and what a reader is shown of
// its line. Line ends are folded as the engine folds them, so offsets are those of the engine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/qmn/check/text_decoder.h"
#include "tools/qmn/code_page.h"

struct Place {
  int line = 1;    // from 1
  int column = 1;  // from 1, in characters: one of two bytes is one
};

struct Snippet {
  std::string line;   // UTF-8, of long lines the part around the place
  std::string caret;  // shows under it; tabs stay tabs, a wide character counts two
};

class SourceText {
 public:
  // A file that is UTF-8 and not of the code page is shown as UTF-8.
  explicit SourceText(std::string bytes, unsigned page = kUsualPage);

  const std::string& Bytes() const { return m_bytes; }
  unsigned Page() const { return m_page; }
  bool IsUtf8() const { return m_isUtf8; }
  TextDecoder& Decoder() { return m_decoder; }  // of what is shown
  TextDecoder& PageDecoder() {
    return m_isUtf8 ? m_pageDecoder : m_decoder;
  }  // as the engine reads

  int LineOf(size_t offset) const;
  // The newline that ends the line, or the end of the file.
  size_t EndOfLineAt(size_t offset) const { return EndOf(LineOf(offset)); }
  Place PlaceOf(size_t offset);
  Snippet SnippetOf(size_t begin, size_t end);
  // In UTF-8, what can't be shown replaced; cut behind `most` characters.
  std::string Shown(size_t begin, size_t end, size_t most = 40);

 private:
  struct Character {
    size_t offset;
    unsigned code;
  };
  // The characters of one line; kept for the next call, since findings come in order.
  const std::vector<Character>& CharactersOf(int line);
  size_t IndexAt(const std::vector<Character>& characters, size_t offset) const;
  size_t EndOf(int line) const;

  std::string m_bytes;
  unsigned m_page;
  bool m_isUtf8;
  TextDecoder m_decoder, m_pageDecoder;
  std::vector<size_t> m_starts;
  int m_decodedLine = 0;
  std::vector<Character> m_characters;
};

// Whether bytes can only be meant as UTF-8: all of it is, and some character has three bytes or
// more. Two-byte characters alone could as well be one double-byte character each.
bool LooksLikeUtf8(std::string_view bytes);
