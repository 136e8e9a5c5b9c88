// Opens files by wide paths in both builds: on Windows directly, elsewhere as UTF-8.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "kernel/kernel_export.h"

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileOwner = std::unique_ptr<std::FILE, FileCloser>;

QVX_KERNEL FileOwner OpenWideFile(const wchar_t* path, const wchar_t* mode);

// The whole content; false when the file can't be opened or read.
QVX_KERNEL bool ReadWholeFile(const wchar_t* path, std::string& bytes);
