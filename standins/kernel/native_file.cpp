#include "kernel/native_file.h"

#ifndef _WIN32
#include "ground/utf8_text.h"
#endif

FileOwner OpenWideFile(const wchar_t* path, const wchar_t* mode) {
#ifdef _WIN32
  return FileOwner(_wfopen(path, mode));
#else
  return FileOwner(std::fopen(qvx::ToUtf8(path).c_str(), qvx::ToUtf8(mode).c_str()));
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
