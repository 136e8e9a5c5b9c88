// A folder for the files of one test, and the drawings that tests open.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace savetest {

namespace fs = std::filesystem;

class DrawingFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder = fs::temp_directory_path() /
             (std::string("qvx_hostsave_") + test->test_suite_name() + "_" + test->name());
    fs::remove_all(folder);
    fs::create_directories(folder);
  }
  void TearDown() override { fs::remove_all(folder); }

  static std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  static void Write(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (const auto& entry : fs::directory_iterator(folder))
      names.push_back(entry.path().filename().wstring());
    return names;
  }

  fs::path folder;
};

}  // namespace savetest
