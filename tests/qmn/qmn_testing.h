// Runs of the tool with streams in memory, and a temporary folder that is removed after the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

struct QmnRun {
  int code;
  std::string out, err;
};
QmnRun Qmn(const std::vector<std::string>& args, const std::string& in = "", bool colour = false);

std::string ReadBytes(const std::filesystem::path& path);  // "<missing>" when it can't be read
void WriteBytes(const std::filesystem::path& path, const std::string& bytes);
std::string Utf8Name(const std::filesystem::path& path);
std::filesystem::path GoldenFolder();  // of the menu engine
std::filesystem::path ProductFolder();
// A product menu as the product has it, in code page 936; the tree has it in UTF-8.
std::string ProductMenu(const std::filesystem::path& path);

class QmnTest : public testing::Test {
 protected:
  QmnTest();
  ~QmnTest() override;
  // The name of a file in the test's folder, in UTF-8 as on the command line.
  std::string Name(const char8_t* file) const { return Utf8Name(m_folder / file); }
  std::string Write(const char8_t* file, const std::string& bytes) const;
  std::string Read(const char8_t* file) const { return ReadBytes(m_folder / file); }
  int FileCount() const;

  std::filesystem::path m_folder;
};

// A valid source, and the bytes that the tool compiles it to.
extern const char kGoodSource[];
std::string GoodBytes();
