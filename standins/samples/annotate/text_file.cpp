#include "text_file.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr char kMark[] = "\xEF\xBB\xBF";

bool Decode(const std::string& bytes, UINT page, DWORD flags, std::wstring& text) {
  const int size = static_cast<int>(bytes.size());
  const int length = ::MultiByteToWideChar(page, flags, bytes.data(), size, nullptr, 0);
  if (length <= 0) return false;
  text.resize(static_cast<std::size_t>(length));
  ::MultiByteToWideChar(page, flags, bytes.data(), size, text.data(), length);
  return true;
}

std::string Encode(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  const int length =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
  return bytes;
}

}  // namespace

std::wstring ReadTextFile(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (bytes.starts_with(kMark)) bytes.erase(0, 3);
  std::wstring text;
  if (!Decode(bytes, CP_UTF8, MB_ERR_INVALID_CHARS, text)) Decode(bytes, CP_ACP, 0, text);
  return text;
}

bool WriteTextFile(const std::wstring& path, const std::wstring& text) {
  const std::wstring unfinished = path + L".new";
  {
    std::ofstream file(std::filesystem::path(unfinished), std::ios::binary | std::ios::trunc);
    file << kMark << Encode(text);
    if (!file.flush()) return false;
  }
  if (::MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING)) return true;
  ::DeleteFileW(unfinished.c_str());
  return false;
}
