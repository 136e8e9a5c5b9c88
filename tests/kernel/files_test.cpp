#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <string>

#include "kernel/native_file.h"
#include "kernel/qvxexport.h"

namespace {

// A file in the temporary folder that its owner deletes.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& bytes)
      : m_path(std::filesystem::temp_directory_path() / "qvx_kernel_files_test.ini") {
    const FileOwner file = OpenWideFile(m_path.wstring().c_str(), L"wb");
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
  }
  ~TemporaryFile() { std::filesystem::remove(m_path); }
  std::wstring Path() const { return m_path.wstring(); }

 private:
  std::filesystem::path m_path;
};

class Ini {
 public:
  Ini(const std::string& bytes, const wchar_t* section) : m_file(bytes) {
    m_found = QvxExport::GetIniFileToIniBufer(m_file.Path().c_str(), section, &m_buffer);
  }
  ~Ini() { QvxExport::FreeIniBuffer(m_buffer); }
  bool Found() const { return m_found; }
  std::wstring operator[](const wchar_t* key) const {
    const wchar_t* value = QvxExport::GetIniBuferValueByKey(m_buffer, key);
    return value ? value : L"(none)";
  }

 private:
  TemporaryFile m_file;
  void* m_buffer = nullptr;
  bool m_found;
};

std::wstring Word(const wchar_t* line, int index) {
  wchar_t out[QvxExport::kPathUnits];
  const int length = QvxExport::GetStringAtIndex(line, index, out);
  EXPECT_EQ(std::wcslen(out), static_cast<std::size_t>(length));
  return out;
}

}  // namespace

TEST(IniFile, ReadsOneSectionInTheAnsiCodePage) {
  // [Product] Title=奇维建筑 (code page 936), QQ群=12
  const Ini ini(
      "[Other]\r\nTitle=no\r\n[Product]\r\n; Title=comment\r\nTitle = "
      "\xC6\xE6\xCE\xAC\xBD\xA8\xD6\xFE \r\n"
      "QQ\xC8\xBA=12\r\n[Last]\r\nHelpFile=no\r\n",
      L"product");
  ASSERT_TRUE(ini.Found());
  EXPECT_EQ(ini[L"Title"], L"奇维建筑");
  EXPECT_EQ(ini[L"TITLE"], L"奇维建筑");
  EXPECT_EQ(ini[L"QQ群"], L"12");
  EXPECT_EQ(ini[L"HelpFile"], L"(none)");
}

TEST(IniFile, TheFirstOfEqualKeysCountsAndQuotesAreRemoved) {
  const Ini ini("[P]\nA=1\nA=2\nB=\" b \"\nC=\nD\nE=x=y", L"P");
  EXPECT_EQ(ini[L"A"], L"1");
  EXPECT_EQ(ini[L"B"], L" b ");
  EXPECT_EQ(ini[L"C"], L"");
  EXPECT_EQ(ini[L"D"], L"(none)");
  EXPECT_EQ(ini[L"E"], L"x=y");
}

TEST(IniFile, AMissingSectionOrFileGivesNoBuffer) {
  const Ini ini("[P]\nA=1\n", L"Q");
  EXPECT_FALSE(ini.Found());
  EXPECT_EQ(ini[L"A"], L"(none)");
  void* buffer = &buffer;
  EXPECT_EQ(QvxExport::GetIniFileToIniBufer(L"no/such/file.ini", L"P", &buffer), 0);
  EXPECT_EQ(buffer, nullptr);
}

TEST(IniFile, RandomBytesAreNoSection) {
  std::string bytes;
  unsigned state = 7;
  for (int i = 0; i < 5000; ++i)
    bytes += static_cast<char>((state = state * 1103515245 + 12345) >> 16);
  EXPECT_FALSE(Ini(bytes, L"Product").Found());
}

TEST(GetStringAtIndex, CountsFromOne) {
  EXPECT_EQ(Word(L"a.arx  b\tc", 1), L"a.arx");
  EXPECT_EQ(Word(L"a.arx  b\tc", 2), L"b");
  EXPECT_EQ(Word(L"a.arx  b\tc\r\n", 3), L"c");
  EXPECT_EQ(Word(L"a.arx  b\tc", 4), L"");
  EXPECT_EQ(Word(L"a", 0), L"");
  EXPECT_EQ(Word(L"a", -1), L"");
}

TEST(GetStringAtIndex, AQuotedStringIsOneWord) {
  EXPECT_EQ(Word(L"  \"C:\\Program Files\\a.arx\" 2", 1), L"C:\\Program Files\\a.arx");
  EXPECT_EQ(Word(L"  \"C:\\Program Files\\a.arx\" 2", 2), L"2");
  EXPECT_EQ(Word(L"\"open end\n", 1), L"open end");
}

TEST(GetStringAtIndex, ABlankLineHasNoWordsAndALongOneIsTruncated) {
  EXPECT_EQ(Word(L" \t\r\n", 1), L"");
  EXPECT_EQ(Word(std::wstring(400, L'x').c_str(), 1).size(), 259u);
}

TEST(WStrNew, ReturnsACopy) {
  wchar_t text[] = L"墙";
  wchar_t* copy = QvxExport::WStrNew(text);
  text[0] = L'x';
  EXPECT_STREQ(copy, L"墙");
  std::free(copy);
  EXPECT_EQ(QvxExport::WStrNew(nullptr), nullptr);
}

TEST(GetFullCmdName, IsTheNameItself) {
  EXPECT_STREQ(QvxExport::GetFullCmdName(L"TCustomize"), L"TCustomize");
}
