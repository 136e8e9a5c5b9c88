#include "ground/document_paths.h"

#include <gtest/gtest.h>

#include <string>

namespace {
std::wstring g_existing;
bool FindExisting(const wchar_t* name, TWCString& path) {
  if (g_existing != name) return false;
  path = name;
  return true;
}
bool Find(const wchar_t* existing, TWCString& found, TWCString& lastTried) {
  g_existing = existing;
  return FindDocument({L"C:\\QVX\\", L"D:\\Setup", FindExisting}, L"ShowMe\\a.chm", found,
                      lastTried);
}
}  // namespace

TEST(ParentFolder, IsTheFolderAboveTheProgramFolder) {
  EXPECT_STREQ(ParentFolder(L"C:\\QVX\\Sys\\"), L"C:\\QVX\\");
  EXPECT_STREQ(ParentFolder(L"C:\\QVX\\"), L"C:\\");
  EXPECT_STREQ(ParentFolder(L"C:\\QVX\\Sys"), L"C:\\QVX\\");
}

TEST(ParentFolder, ATextWithoutAParentFolderIsUnchanged) {
  EXPECT_STREQ(ParentFolder(L"C:\\"), L"C:\\");
  EXPECT_STREQ(ParentFolder(L"Sys"), L"Sys");
  EXPECT_STREQ(ParentFolder(L""), L"");
  EXPECT_STREQ(ParentFolder(L"\\"), L"\\");
}

TEST(FindDocument, PrefersTheFolderAboveTheProgram) {
  TWCString found, lastTried;
  EXPECT_TRUE(Find(L"C:\\QVX\\ShowMe\\a.chm", found, lastTried));
  EXPECT_STREQ(found, L"C:\\QVX\\ShowMe\\a.chm");
  EXPECT_TRUE(Find(L"D:\\Setup\\ShowMe\\a.chm", found, lastTried));
  EXPECT_STREQ(found, L"D:\\Setup\\ShowMe\\a.chm");
}

TEST(FindDocument, ReturnsTheSecondPathWhenNeitherExists) {
  TWCString found, lastTried;
  EXPECT_FALSE(Find(L"elsewhere", found, lastTried));
  EXPECT_STREQ(lastTried, L"D:\\Setup\\ShowMe\\a.chm");
  EXPECT_TRUE(found.IsEmpty());
}
