// Reads expressions: numbers, strings, symbols, lists and quotes.
#pragma once

#include <string>

#include "devhost/core/lisp/lisp_value.h"

namespace devhost {

constexpr int kMaxExpressionDepth = 100;

class LispReader {
 public:
  explicit LispReader(const std::wstring& text) : m_at(text.c_str()) {}

  bool Read(LispValue* value, std::wstring* error, int depth = 0);
  bool AtEnd();

 private:
  void SkipBlanks();
  bool ReadList(LispValue* value, std::wstring* error, int depth);
  bool ReadString(LispValue* value, std::wstring* error);
  void ReadAtom(LispValue* value);

  const wchar_t* m_at;
};

}  // namespace devhost
