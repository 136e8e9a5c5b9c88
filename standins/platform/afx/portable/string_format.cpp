// Formatting: directives are parsed here, numbers are printed by snprintf,
// text is inserted directly.
#include "string_format.h"

#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <stdexcept>
#include <type_traits>

#include "afx.h"

namespace {

constexpr int kWidestField = 32767;  // a larger width comes from a damaged format

enum class Size { Normal, Short, Byte, Long, LongLong, Pointer, Wide };

struct Directive {
  std::string flags;
  int width = -1;
  int precision = -1;
  Size size = Size::Normal;
  char conversion = 0;
};

// va_list may be an array type; in a structure it can be passed by reference everywhere.
struct Arguments {
  va_list list;
};

template <class Char>
bool IsDigit(Char character) {
  return character >= '0' && character <= '9';
}

template <class Char>
int ReadCount(const Char*& at, Arguments& arguments) {
  if (*at == '*') {
    ++at;
    return va_arg(arguments.list, int);
  }
  int count = 0;
  for (; IsDigit(*at); ++at)
    count = count < kWidestField ? count * 10 + static_cast<int>(*at - '0') : kWidestField;
  return count;
}

template <class Char>
Size ReadSize(const Char*& at) {
  const auto take = [&at](int characters, Size size) {
    at += characters;
    return size;
  };
  switch (*at) {
    case 'h':
      return at[1] == 'h' ? take(2, Size::Byte) : take(1, Size::Short);
    case 'l':
      return at[1] == 'l' ? take(2, Size::LongLong) : take(1, Size::Long);
    case 'w':
      return take(1, Size::Wide);
    case 'j':
      return take(1, Size::LongLong);
    case 'z':
    case 't':
      return take(1, Size::Pointer);
    case 'L':
      return take(1, Size::Normal);
    case 'I':
      if (at[1] == '6' && at[2] == '4') return take(3, Size::LongLong);
      if (at[1] == '3' && at[2] == '2') return take(3, Size::Normal);
      return take(1, Size::Pointer);
    default:
      return Size::Normal;
  }
}

// directive: % flags width . precision size conversion
template <class Char>
Directive ReadDirective(const Char*& at, Arguments& arguments) {
  Directive directive;
  for (; *at == '-' || *at == '+' || *at == ' ' || *at == '#' || *at == '0'; ++at)
    directive.flags += static_cast<char>(*at);
  if (*at == '*' || IsDigit(*at)) directive.width = ReadCount(at, arguments);
  if (directive.width < -1) {
    directive.flags += '-';
    directive.width = directive.width < -kWidestField ? kWidestField : -directive.width;
  }
  if (*at == '.') directive.precision = ReadCount(++at, arguments);
  directive.size = ReadSize(at);
  if (*at && *at < 128) directive.conversion = static_cast<char>(*at);
  if (*at) ++at;
  return directive;
}

template <class Value>
std::string PrintNumber(const Directive& directive, const char* size, Value value) {
  std::string format = "%" + directive.flags;
  if (directive.width >= 0) format += std::to_string(directive.width);
  if (directive.precision >= 0) format += "." + std::to_string(directive.precision);
  format += size;
  format += directive.conversion;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  const int length = std::snprintf(nullptr, 0, format.c_str(), value);
  if (length < 0) return {};
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(text.data(), text.size(), format.c_str(), value);
#pragma GCC diagnostic pop
  text.pop_back();
  return text;
}

long long TakeSigned(Size size, Arguments& arguments) {
  switch (size) {
    case Size::LongLong:
      return va_arg(arguments.list, long long);
    case Size::Pointer:
      return static_cast<long long>(va_arg(arguments.list, std::intptr_t));
    case Size::Short:
      return static_cast<short>(va_arg(arguments.list, int));
    case Size::Byte:
      return static_cast<signed char>(va_arg(arguments.list, int));
    default:
      return va_arg(arguments.list, int);  // l means 32 bits on every build
  }
}

unsigned long long TakeUnsigned(Size size, Arguments& arguments) {
  switch (size) {
    case Size::LongLong:
      return va_arg(arguments.list, unsigned long long);
    case Size::Pointer:
      return va_arg(arguments.list, std::uintptr_t);
    case Size::Short:
      return static_cast<unsigned short>(va_arg(arguments.list, int));
    case Size::Byte:
      return static_cast<unsigned char>(va_arg(arguments.list, int));
    default:
      return va_arg(arguments.list, unsigned);
  }
}

std::string FormatNumber(Directive directive, Arguments& arguments) {
  switch (directive.conversion) {
    case 'd':
    case 'i':
      return PrintNumber(directive, "ll", TakeSigned(directive.size, arguments));
    case 'p':
      directive.conversion = 'X';
      directive.flags = "0";
      directive.width = 2 * static_cast<int>(sizeof(void*));
      return PrintNumber(directive, "ll", TakeUnsigned(Size::Pointer, arguments));
    case 'u':
    case 'o':
    case 'x':
    case 'X':
      return PrintNumber(directive, "ll", TakeUnsigned(directive.size, arguments));
    default:
      return PrintNumber(directive, "", va_arg(arguments.list, double));
  }
}

template <class Char>
std::size_t LengthWithin(const Char* text, int limit) {
  std::size_t length = 0;
  while ((limit < 0 || length < static_cast<std::size_t>(limit)) && text[length]) ++length;
  return length;
}

template <class Char>
std::basic_string<Char> Convert(std::wstring_view text) {
  if constexpr (std::is_same_v<Char, wchar_t>)
    return std::wstring(text);
  else
    return WideToAnsi(text);
}

template <class Char>
std::basic_string<Char> Convert(std::string_view text) {
  if constexpr (std::is_same_v<Char, wchar_t>)
    return AnsiToWide(text);
  else
    return std::string(text);
}

// Capital letters mean the other width; h, l and w give the width.
template <class Char>
bool IsWideText(const Directive& directive) {
  if (directive.size == Size::Short) return false;
  if (directive.size == Size::Long || directive.size == Size::Wide) return true;
  const bool other = directive.conversion == 'S' || directive.conversion == 'C';
  return std::is_same_v<Char, wchar_t> != other;
}

template <class Char, class From>
std::basic_string<Char> TakeText(const Directive& directive, Arguments& arguments) {
  const From* text = va_arg(arguments.list, const From*);
  if (!text) return Convert<Char>(std::string_view("(null)"));
  return Convert<Char>(std::basic_string_view<From>(text, LengthWithin(text, directive.precision)));
}

template <class Char>
std::basic_string<Char> FormatString(const Directive& directive, Arguments& arguments) {
  const bool wide = IsWideText<Char>(directive);
  if (directive.conversion == 's' || directive.conversion == 'S')
    return wide ? TakeText<Char, wchar_t>(directive, arguments)
                : TakeText<Char, char>(directive, arguments);
  const int character = va_arg(arguments.list, int);
  if (wide) return Convert<Char>(std::wstring(1, static_cast<wchar_t>(character)));
  return Convert<Char>(std::string(1, static_cast<char>(character)));
}

template <class Char>
void Pad(std::basic_string<Char>* text, const Directive& directive) {
  const auto width = static_cast<std::size_t>(directive.width < 0 ? 0 : directive.width);
  if (text->size() >= width) return;
  const bool left = directive.flags.find('-') != std::string::npos;
  text->insert(left ? text->size() : 0, width - text->size(), static_cast<Char>(' '));
}

template <class Char>
void AppendDirective(std::basic_string<Char>* out, const Directive& directive,
                     Arguments& arguments) {
  switch (directive.conversion) {
    case '%':
      out->push_back('%');
      return;
    case 's':
    case 'S':
    case 'c':
    case 'C': {
      auto text = FormatString<Char>(directive, arguments);
      Pad(&text, directive);
      *out += text;
      return;
    }
    case 'd':
    case 'i':
    case 'u':
    case 'o':
    case 'x':
    case 'X':
    case 'p':
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A': {
      const std::string number = FormatNumber(directive, arguments);
      out->append(number.begin(), number.end());
      return;
    }
    default:
      return;  // an unknown directive prints nothing and consumes no argument
  }
}

}  // namespace

template <class Char>
std::basic_string<Char> FormatText(const Char* format, va_list arguments) {
  Arguments taken;
  va_copy(taken.list, arguments);
  std::basic_string<Char> out;
  for (const Char* at = format; *at;) {
    if (*at != '%') {
      out.push_back(*at++);
      continue;
    }
    ++at;
    AppendDirective(&out, ReadDirective(at, taken), taken);
  }
  va_end(taken.list);
  return out;
}

template std::wstring FormatText<wchar_t>(const wchar_t*, va_list);
template std::string FormatText<char>(const char*, va_list);
