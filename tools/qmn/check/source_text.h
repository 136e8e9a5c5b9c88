// A menu source by lines and characters: the line and column of a byte, and the line as it is
// shown. Line ends are folded as the engine folds them, so offsets match the engine's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/qmn/check/text_decoder.h"
#include "tools/qmn/code_page.h"

struct Place {
  int line = 1;    // from 1
  int column = 1;  // from 1, in characters: a double-byte character counts one
};

struct Snippet {
  std::string line;  // UTF-8; of a long line the part around the position
  std::string
      caret;  // marks the position below the line; tabs stay tabs, a wide character counts two
};

class SourceText {
 public:
  // A file that is UTF-8 and not valid in the code page is shown as UTF-8.
  explicit SourceText(std::string bytes, unsigned page = kUsualPage);

  const std::string& Bytes() const { return m_bytes; }
  unsigned Page() const { return m_page; }
  bool IsUtf8() const { return m_isUtf8; }
  TextDecoder& Decoder() { return m_decoder; }  // for the text as shown
  TextDecoder& PageDecoder() {
    return m_isUtf8 ? m_pageDecoder : m_decoder;
  }  // as the engine reads

  int LineOf(size_t offset) const;
  // Offset of the newline that ends the line, or of the end of the file.
  size_t EndOfLineAt(size_t offset) const { return EndOf(LineOf(offset)); }
  Place PlaceOf(size_t offset);
  Snippet SnippetOf(size_t begin, size_t end);
  // In UTF-8, with unprintable characters replaced; cut after `most` characters.
  std::string Shown(size_t begin, size_t end, size_t most = 40);

 private:
  struct Character {
    size_t offset;
    unsigned code;
  };
  // The characters of one line; cached, since findings come in order of position.
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

// True when the bytes can only be UTF-8: all of them are valid and some character has three bytes
// or more. Two-byte sequences alone could also be double-byte characters.
bool LooksLikeUtf8(std::string_view bytes);
