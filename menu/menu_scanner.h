// The scanner of the menu language: source bytes to tokens, longest match first. The whole file is
// in memory, in the ANSI code page, which is not decoded here: bytes from 0x80 up are valid in
// strings, menu lines and comments and skipped elsewhere. Deliberate: a double-byte character whose
// second byte is a backslash therefore escapes the next character of a string.
//
// A byte 0 ends the file, except inside a comment. Deliberate: an unterminated comment (a //
// comment on a last line without a newline, or a /* without */) is an endless loop, unless the
// caller passes OpenComment::kStop, as the tools do.
#pragma once

#include <cstdio>
#include <string>

#include "menu/menu_token.h"
#include "menu/source_messages.h"

constexpr int kLongestToken = 199;  // bytes; the token buffer of the language has 200

// Writes the bytes that no rule matches, with the newlines between tokens, to a file. The product
// does not read it; null drops them.
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

// CR LF becomes LF, as reading in text mode does; a CR without LF is kept.
void FoldLineEnds(std::string& bytes);

enum class OpenComment { kReadOn, kStop };

class MenuScanner {
 public:
  // The line ends of `source` are folded; it must outlive the scanner and its tokens.
  MenuScanner(const std::string& source, SourceMessages& messages, SourceEcho* echo = nullptr,
              OpenComment openComment = OpenComment::kReadOn);

  int Next(MenuToken& token);  // the token's kind; QMN_END at the end of input

  int Line() const { return m_line; }
  void SetLine(int line) { m_line = line; }
  const char* Position() const { return m_at; }
  size_t Left() const { return static_cast<size_t>(m_end - m_at); }  // bytes
  // The beginning of an unterminated comment, null for none. Only with kStop.
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
