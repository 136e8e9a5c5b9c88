// The reader of expressions; see the header.
#include "devhost/core/lisp/lisp_reader.h"

#include <cwchar>
#include <cwctype>

#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

bool Fail(std::wstring* error, const wchar_t* why) {
  *error = why;
  return false;
}

}  // namespace

bool LispReader::Read(LispValue* value, std::wstring* error, int depth) {
  SkipBlanks();
  if (!*m_at) return Fail(error, L"表达式没有结束");
  if (depth > kMaxExpressionDepth) return Fail(error, L"括号嵌套太深");
  if (*m_at == L'\'') {
    ++m_at;
    LispValue quoted;
    if (!Read(&quoted, error, depth + 1)) return false;
    *value = LispValue::List({LispValue::Symbol(L"QUOTE"), std::move(quoted)});
    return true;
  }
  if (*m_at == L'(') return ReadList(value, error, depth);
  if (*m_at == L')') return Fail(error, L"多余的右括号");
  if (*m_at == L'"') return ReadString(value, error);
  ReadAtom(value);
  return true;
}

bool LispReader::AtEnd() {
  SkipBlanks();
  return !*m_at;
}

void LispReader::SkipBlanks() {
  while (*m_at && std::iswspace(static_cast<wint_t>(*m_at))) ++m_at;
}

bool LispReader::ReadList(LispValue* value, std::wstring* error, int depth) {
  ++m_at;
  std::vector<LispValue> items;
  for (SkipBlanks(); *m_at && *m_at != L')'; SkipBlanks()) {
    items.emplace_back();
    if (!Read(&items.back(), error, depth + 1)) return false;
  }
  if (!*m_at) return Fail(error, L"列表没有结束");
  ++m_at;
  *value = LispValue::List(std::move(items));
  return true;
}

bool LispReader::ReadString(LispValue* value, std::wstring* error) {
  std::wstring text;
  for (++m_at; *m_at && *m_at != L'"'; ++m_at) {
    if (*m_at != L'\\' || !m_at[1]) {
      text += *m_at;
      continue;
    }
    ++m_at;
    text += *m_at == L'n' ? L'\n' : *m_at == L't' ? L'\t' : *m_at == L'e' ? L'\x1b' : *m_at;
  }
  if (!*m_at) return Fail(error, L"字符串没有结束");
  ++m_at;
  *value = LispValue::String(std::move(text));
  return true;
}

void LispReader::ReadAtom(LispValue* value) {
  std::wstring text;
  while (*m_at && !std::iswspace(static_cast<wint_t>(*m_at)) && !std::wcschr(L"()\"'", *m_at))
    text += *m_at++;
  wchar_t* end = nullptr;
  const long long integer = std::wcstoll(text.c_str(), &end, 10);
  if (!*end) return void(*value = LispValue::Integer(integer));
  const double real = std::wcstod(text.c_str(), &end);
  const bool number =
      std::iswdigit(static_cast<wint_t>(text[0])) || text[0] == L'-' || text[0] == L'+';
  if (!*end && number) return void(*value = LispValue::Real(real));
  *value = LispValue::Symbol(UpperCase(text));
}

}  // namespace devhost
