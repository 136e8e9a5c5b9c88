// CFile on the disk, CMemFile and CStdioFile.
#include <gtest/gtest.h>

#include <filesystem>

#include "afx.h"

namespace {

class FileTest : public testing::Test {
 protected:
  FileTest() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    m_folder = std::filesystem::temp_directory_path() / (std::string("qvx_") + test->name());
    std::filesystem::remove_all(m_folder);
    std::filesystem::create_directories(m_folder);
  }
  ~FileTest() override { std::filesystem::remove_all(m_folder); }

  CString Path(const wchar_t* name) const {
    return CString(m_folder.wstring().c_str()) + L'/' + name;
  }
  std::uintmax_t SizeOf(const wchar_t* name) const {
    return std::filesystem::file_size(m_folder / name);
  }

  std::filesystem::path m_folder;
};

TEST_F(FileTest, WhatIsWrittenIsReadBack) {
  CFile out(Path(L"menu.qmc"), CFile::modeCreate | CFile::modeWrite);
  out.Write("hello", 5);
  EXPECT_EQ(out.GetPosition(), 5u);
  out.Close();
  CFile in(Path(L"menu.qmc"), CFile::modeRead);
  char text[9] = {};
  EXPECT_EQ(in.GetLength(), 5u);
  EXPECT_EQ(in.Read(text, 8), 5u);
  EXPECT_STREQ(text, "hello");
  EXPECT_EQ(in.Seek(-2, CFile::end), 3u);
  EXPECT_EQ(in.Read(text, 8), 2u);
  EXPECT_STREQ(in.GetFileName(), L"menu.qmc");
}

#ifndef _WIN32
// Under Wine such a name needs a UTF-8 locale, which the build machine may lack.
TEST_F(FileTest, ANameMayContainAnyCharacter) {
  CFile(Path(L"菜单.qmc"), CFile::modeCreate | CFile::modeWrite).Write("x", 1);
  EXPECT_TRUE(std::filesystem::exists(m_folder / "菜单.qmc"));
  CFile in(Path(L"菜单.qmc"), CFile::modeRead);
  EXPECT_EQ(in.GetLength(), 1u);
}
#endif

TEST_F(FileTest, CreatingTruncatesTheFileUnlessModeNoTruncateIsGiven) {
  CFile(Path(L"a"), CFile::modeCreate | CFile::modeWrite).Write("12345", 5);
  CFile(Path(L"a"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("x", 1);
  EXPECT_EQ(SizeOf(L"a"), 5u);
  CFile(Path(L"a"), CFile::modeCreate | CFile::modeWrite).Write("x", 1);
  EXPECT_EQ(SizeOf(L"a"), 1u);
}

TEST_F(FileTest, AMissingFileIsReported) {
  CFile file;
  CFileException why;
  EXPECT_FALSE(file.Open(Path(L"none"), CFile::modeRead, &why));
  EXPECT_EQ(why.m_cause, CFileException::fileNotFound);
  EXPECT_STREQ(why.m_strFileName, Path(L"none"));
  EXPECT_EQ(file.m_hFile, CFile::hFileNull);
  try {
    CFile another(Path(L"none"), CFile::modeRead);
    FAIL() << "a missing file opened";
  } catch (CFileException* exception) {
    EXPECT_EQ(exception->m_cause, CFileException::fileNotFound);
    exception->Delete();
  }
}

TEST_F(FileTest, AFolderCannotBeOpenedAsAFile) {
  CFile file;
  CFileException why;
  EXPECT_FALSE(file.Open(Path(L"."), CFile::modeRead, &why));
  EXPECT_NE(why.m_cause, CFileException::none);
}

TEST_F(FileTest, AFileIsRenamedAndRemoved) {
  CFile(Path(L"a"), CFile::modeCreate | CFile::modeWrite).Write("x", 1);
  CFile::Rename(Path(L"a"), Path(L"b"));
  EXPECT_EQ(SizeOf(L"b"), 1u);
  CFile::Remove(Path(L"b"));
  try {
    CFile::Remove(Path(L"b"));
    FAIL() << "a missing file was removed";
  } catch (CFileException* exception) {
    EXPECT_EQ(exception->m_cause, CFileException::fileNotFound);
    exception->Delete();
  }
}

TEST_F(FileTest, SetLengthTruncatesAndGrows) {
  CFile file(Path(L"a"), CFile::modeCreate | CFile::modeReadWrite);
  file.Write("12345", 5);
  file.SetLength(2);
  EXPECT_EQ(file.GetLength(), 2u);
  file.SetLength(7);
  EXPECT_EQ(file.GetLength(), 7u);
}

TEST_F(FileTest, LinesAreReadWithoutTheirEnds) {
  CFile(Path(L"t"), CFile::modeCreate | CFile::modeWrite).Write("one\r\n\ntwo", 9);
  CStdioFile file(Path(L"t"), CFile::modeRead);
  CString line;
  EXPECT_TRUE(file.ReadString(line));
  EXPECT_STREQ(line, L"one");
  EXPECT_EQ(file.GetPosition(), 5u);
  EXPECT_TRUE(file.ReadString(line));
  EXPECT_STREQ(line, L"");
  EXPECT_TRUE(file.ReadString(line));
  EXPECT_STREQ(line, L"two");
  EXPECT_FALSE(file.ReadString(line));
}

TEST_F(FileTest, TextModeWritesBothCharactersOfALineEnd) {
  CStdioFile text(Path(L"t"), CFile::modeCreate | CFile::modeWrite);
  text.WriteString(L"a\nb");
  text.Close();
  EXPECT_EQ(SizeOf(L"t"), 4u);
  CStdioFile binary(Path(L"b"), CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
  binary.WriteString(L"a\nb");
  binary.Close();
  EXPECT_EQ(SizeOf(L"b"), 3u);
}

TEST(MemFile, GrowsAndSeeks) {
  CMemFile file;
  file.Write("abc", 3);
  file.Seek(1, CFile::begin);
  file.Write("XYZ", 3);
  EXPECT_EQ(file.GetLength(), 4u);
  file.SeekToBegin();
  char text[8] = {};
  EXPECT_EQ(file.Read(text, 8), 4u);
  EXPECT_STREQ(text, "aXYZ");
  EXPECT_EQ(file.Read(text, 8), 0u);
  try {
    file.Seek(-9, CFile::current);
    FAIL() << "a place before the file was reached";
  } catch (CFileException* exception) {
    EXPECT_EQ(exception->m_cause, CFileException::badSeek);
    exception->Delete();
  }
}

}  // namespace
