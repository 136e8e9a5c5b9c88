// See utf8.h.
#include "devhost/core/base/utf8.h"

#include "afxstr.h"
#include "ground/utf8_text.h"

namespace devhost {
namespace {
constexpr unsigned kUtf8Page = 65001;
}

std::string Utf8(const wchar_t* text) { return text ? qvx::ToUtf8(text) : std::string(); }

std::string Utf8(const std::wstring& text) { return qvx::ToUtf8(text); }

std::wstring Wide(const std::string& utf8) { return AnsiToWide(utf8, kUtf8Page); }

}  // namespace devhost
