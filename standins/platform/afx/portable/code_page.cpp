// Conversion between narrow text in a code page and wide text of UTF-16 units: by Windows there, by
// iconv elsewhere. Used by CString and by readers of 8-bit files.
#include "afxstr.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#ifdef _WIN32

std::wstring AnsiToWide(std::string_view narrow, unsigned page) {
  const char* text = narrow.data();
  const int size = static_cast<int>(narrow.size());
  const int units = size ? MultiByteToWideChar(page, 0, text, size, nullptr, 0) : 0;
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  if (units) MultiByteToWideChar(page, 0, text, size, wide.data(), units);
  return wide;
}

std::string WideToAnsi(std::wstring_view wide, unsigned page) {
  const wchar_t* text = wide.data();
  const int size = static_cast<int>(wide.size());
  const int bytes =
      size ? WideCharToMultiByte(page, 0, text, size, nullptr, 0, nullptr, nullptr) : 0;
  std::string narrow(static_cast<std::size_t>(bytes), '\0');
  if (bytes) WideCharToMultiByte(page, 0, text, size, narrow.data(), bytes, nullptr, nullptr);
  return narrow;
}

#else

#include <iconv.h>

namespace {

constexpr char kUtf16[] = "UTF-16LE";
constexpr wchar_t kReplacement = 0xFFFD;
// On Windows code page 936 has the euro sign at this byte; the tables of iconv do not.
constexpr unsigned kChinesePage = 936;
constexpr char kEuroByte = '\x80';
constexpr wchar_t kEuro = 0x20AC;

std::string PageName(unsigned page) {
  if (page == 65001) return "UTF-8";
  if (page == 28591) return "ISO-8859-1";
  return "CP" + std::to_string(page ? page : AFX_ANSI_PAGE);
}

// Owns a conversion descriptor.
class Converter {
 public:
  Converter(const std::string& to, const std::string& from)
      : m_handle(iconv_open(to.c_str(), from.c_str())) {}
  ~Converter() {
    if (IsOpen()) iconv_close(m_handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  bool IsOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

  // Converts as much as possible and advances the input; false if it stopped at an invalid byte.
  bool Run(const char*& in, std::size_t& left, std::string* out) {
    const bool whole = Convert(in, left, out);
    Flush(out);
    return whole;
  }

 private:
  bool Convert(const char*& in, std::size_t& left, std::string* out) {
    std::array<char, 4096> chunk;
    for (;;) {
      char* source = const_cast<char*>(in);
      char* target = chunk.data();
      std::size_t room = chunk.size();
      const std::size_t result = iconv(m_handle, &source, &left, &target, &room);
      const int why = errno;
      out->append(chunk.data(), chunk.size() - room);
      in = source;
      if (result != static_cast<std::size_t>(-1)) return true;
      if (why != E2BIG) return false;
    }
  }

  // A code page with combining marks may keep a letter until the next one is read.
  void Flush(std::string* out) {
    std::array<char, 16> rest;
    char* target = rest.data();
    std::size_t room = rest.size();
    iconv(m_handle, nullptr, nullptr, &target, &room);
    out->append(rest.data(), rest.size() - room);
  }

  iconv_t m_handle;
};

void AppendUnit(std::string* utf16, wchar_t unit) {
  utf16->push_back(static_cast<char>(unit & 0xFF));
  utf16->push_back(static_cast<char>(unit >> 8 & 0xFF));
}

std::wstring UnitsOf(const std::string& utf16) {
  std::wstring wide;
  wide.reserve(utf16.size() / 2);
  for (std::size_t i = 0; i + 1 < utf16.size(); i += 2)
    wide.push_back(static_cast<wchar_t>(static_cast<std::uint8_t>(utf16[i]) |
                                        static_cast<std::uint8_t>(utf16[i + 1]) << 8));
  return wide;
}

bool IsAscii(char character) { return static_cast<unsigned char>(character) < 0x80; }

}  // namespace

std::wstring AnsiToWide(std::string_view narrow, unsigned page) {
  if (std::all_of(narrow.begin(), narrow.end(), IsAscii))
    return std::wstring(narrow.begin(), narrow.end());
  const char* text = narrow.data();
  std::size_t bytes = narrow.size();
  Converter converter(kUtf16, PageName(page));
  std::string utf16;
  const bool chinese = page == kChinesePage || page == 0;
  while (bytes) {
    if (converter.IsOpen() && converter.Run(text, bytes, &utf16)) break;
    AppendUnit(&utf16, chinese && *text == kEuroByte ? kEuro : kReplacement);
    ++text;
    --bytes;
  }
  return UnitsOf(utf16);
}

std::string WideToAnsi(std::wstring_view wide, unsigned page) {
  std::string utf16;
  utf16.reserve(wide.size() * 2);
  for (const wchar_t unit : wide) AppendUnit(&utf16, unit);
  Converter converter(PageName(page), kUtf16);
  const char* in = utf16.data();
  std::size_t left = utf16.size();
  std::string narrow;
  const bool chinese = page == kChinesePage || page == 0;
  while (left) {
    if (converter.IsOpen() && converter.Run(in, left, &narrow)) break;
    const auto low = static_cast<std::uint8_t>(in[0]);
    const auto high = static_cast<std::uint8_t>(in[1]);
    narrow.push_back(chinese && (high << 8 | low) == kEuro ? kEuroByte : '?');
    // A surrogate pair is one character.
    const bool pair = (high & 0xFC) == 0xD8 && left >= 4 && (in[3] & '\xFC') == '\xDC';
    const std::size_t step = pair ? 4 : 2;
    in += step;
    left -= step;
  }
  return narrow;
}

#endif
