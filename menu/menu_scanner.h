// The scanner of the menu language: source bytes in, tokens out, longest match first. It works on a
// whole file in memory, in the ANSI code page, which it never decodes: bytes from 0x80 up pass
// through strings, menu lines and comments and are skipped anywhere else. So a double-byte
// character whose second byte is a backslash escapes what follows it in a string, as it always has.
//
// A byte 0 reads as the end of the file, except inside comments, which nothing ends but their own
// end: a // comment on a last line without a newline, or a /* without its */, is read on for ever.
// Menu files end properly; whoever reads foreign files asks for OpenComment::kStop.
#pragma once

#include <cstdio>
#include <string>

#include "menu/menu_token.h"
#include "menu/source_messages.h"

constexpr int kLongestToken = 199;  // bytes; the token buffer of the language has 200

// What the scanner skips without a rule for it, the newlines between tokens among them. Nobody
// reads it; a null file drops it.
class SourceEcho {
 public:
  explicit SourceEcho(std::FILE* file = nullptr) : m_file(file) {}
  ~SourceEcho() { Flush(); }
  SourceEcho(const SourceEcho&) = delete;
  SourceEcho& operator=(const SourceEcho&) = delete;
  void Put(char byte) {
    if (!m_file) return;
    m_bytes[m_count++] = byte;
    if (m_count == sizeof m_bytes) Flush();
  }
  void Flush();

 private:
  std::FILE* m_file;
  std::size_t m_count = 0;
  char m_bytes[4096];
};

// CR LF becomes LF, as reading in text mode does; a CR without LF behind it stays.
void FoldLineEnds(std::string& bytes);

enum class OpenComment { kReadOn, kStop };

class MenuScanner {
 public:
  // `source` has its line ends folded and outlives the scanner and its tokens.
  MenuScanner(const std::string& source, SourceMessages& messages, SourceEcho* echo = nullptr,
              OpenComment openComment = OpenComment::kReadOn);

  int Next(MenuToken& token);  // the token's kind; QMN_END at the end of input

  int Line() const { return m_line; }
  void SetLine(int line) { m_line = line; }
  const char* Position() const { return m_at; }
  size_t Left() const { return static_cast<size_t>(m_end - m_at); }  // bytes
  // Where a comment that never ends was opened; null while there is none. Only with kStop.
  const char* OpenCommentAt() const { return m_openComment; }

 private:
  int Text(MenuToken& token, int kind, const char* begin, const char* end);
  int Fail(MenuToken& token, int kind, const char* begin, const char* end, const wchar_t* message);
  int Identifier(MenuToken& token);
  int Number(MenuToken& token);
  const char* Fraction(const char* point, const char* limit) const;
  int Real(MenuToken& token, const char* end);
  int String(MenuToken& token);
  int MenuLine(MenuToken& token);
  int Stars(MenuToken& token);
  bool Comment();
  bool LineComment();
  bool BlockComment();
  bool CommentHasNoEnd(const char* begin);
  void Skip();
  const char* Limit(const char* begin) const;

  const char* m_at;
  const char* m_end;
  int m_line = 1;
  SourceMessages& m_messages;
  SourceEcho* m_echo;
  OpenComment m_onOpenComment;
  const char* m_openComment = nullptr;
};
