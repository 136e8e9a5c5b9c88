// UTF-8 and wide text (one UTF-16 unit per wchar_t on every build). What is invalid becomes U+FFFD.
#pragma once

#include <string>

namespace devhost {

std::string Utf8(const wchar_t* text);  // null is empty
std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& utf8);

// Whether a byte continues a character that began before it.
inline bool IsUtf8Continuation(char byte) { return (byte & 0xC0) == 0x80; }

}  // namespace devhost
