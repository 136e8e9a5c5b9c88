// A temporary tip file. Tests write its text as UTF-8; the file has the ANSI code page.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "dialogs/tip_file.h"

class TipFileOnDisk {
 public:
  explicit TipFileOnDisk(const std::string& bytes)
      : m_path(std::filesystem::temp_directory_path() / "qvx_dialogs_tips.txt") {
    Write(bytes);
  }
  ~TipFileOnDisk() { std::filesystem::remove(m_path); }
  TipFileOnDisk(const TipFileOnDisk&) = delete;
  TipFileOnDisk& operator=(const TipFileOnDisk&) = delete;

  void Write(const std::string& bytes) {
    std::ofstream(m_path, std::ios::binary | std::ios::trunc) << bytes;
  }
  // Sets the time of the last change back by so many hours.
  void Age(int hours) {
    std::filesystem::last_write_time(
        m_path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(hours));
  }
  std::wstring Path() const { return m_path.wstring(); }
  FileOwner Open() const { return qvx::OpenTipFile(Path().c_str()); }

 private:
  std::filesystem::path m_path;
};
