#include "kernel/native_file.h"

#ifndef _WIN32
namespace {
void AppendUtf8(std::string& out, unsigned code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(0x80 | (code & 63));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    out += static_cast<char>(0x80 | (code >> 6 & 63));
    out += static_cast<char>(0x80 | (code & 63));
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    out += static_cast<char>(0x80 | (code >> 12 & 63));
    out += static_cast<char>(0x80 | (code >> 6 & 63));
    out += static_cast<char>(0x80 | (code & 63));
  }
}

// Surrogate pairs are joined: strings hold UTF-16 units here too.
std::string Utf8Of(const wchar_t* text) {
  std::string out;
  for (; *text; ++text) {
    unsigned code = static_cast<unsigned>(*text);
    const unsigned next = static_cast<unsigned>(text[1]);
    if (code >= 0xD800 && code < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
      code = 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
      ++text;
    }
    AppendUtf8(out, code);
  }
  return out;
}
}  // namespace
#endif

FileOwner OpenWideFile(const wchar_t* path, const wchar_t* mode) {
#ifdef _WIN32
  return FileOwner(_wfopen(path, mode));
#else
  return FileOwner(std::fopen(Utf8Of(path).c_str(), Utf8Of(mode).c_str()));
#endif
}

bool ReadWholeFile(const wchar_t* path, std::string& bytes) {
  FileOwner file = OpenWideFile(path, L"rb");
  if (!file) return false;
  bytes.clear();
  char block[4096];
  std::size_t got;
  while ((got = std::fread(block, 1, sizeof block, file.get())) > 0) bytes.append(block, got);
  return !std::ferror(file.get());
}
