// Texts of the product file and the defaults of missing keys.
#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <fstream>

#include "dialogs/product_texts.h"

namespace {

namespace fs = std::filesystem;

fs::path Folder() { return fs::temp_directory_path() / "qvx_product_texts"; }

bool FindInFolder(const wchar_t* name, TWCString& out) {
  const fs::path path = Folder() / name;
  if (!*name || !fs::exists(path)) return false;
  out = path.wstring().c_str();
  return true;
}

class ProductTexts : public ::testing::Test {
 protected:
  void SetUp() override { fs::create_directories(Folder()); }
  void TearDown() override { fs::remove_all(Folder()); }
  static void Write(const char* name, const std::string& bytes) {
    std::ofstream(Folder() / name, std::ios::binary) << bytes;
  }
};

}  // namespace

TEST_F(ProductTexts, TheAboutDialogReadsItsKeys) {
  Write("a.ico", "icon");
  Write("qvx.ini",
        "[Product]\nAbout=A product\nNewVersion=8.1\nSubVer=77\nEmail=me@here.example\n"
        "QQ\xC8\xBA=4711\nIconFile=a.ico\nCName=C\nEName=E\n");
  const qvx::AboutTexts texts = qvx::LoadAboutTexts(FindInFolder);
  EXPECT_STREQ(texts.name, L"A product");
  EXPECT_STREQ(texts.version, L"8.1");
  EXPECT_STREQ(texts.subVersion, L"77");
  EXPECT_STREQ(texts.mail, L"me@here.example");
  EXPECT_STREQ(texts.group, L"4711");
  EXPECT_STREQ(texts.chineseName, L"C");
  EXPECT_STREQ(texts.englishName, L"E");
  EXPECT_EQ(fs::path(texts.iconFile.GetString()), Folder() / "a.ico");
}

TEST_F(ProductTexts, WithoutAProductFileLinesAreEmptyAndTheMakersAddressesAreUsed) {
  for (const char* content : {"", "[Other]\nAbout=x\n", "[Product]\n", "\xFF\xFE\x01\x02"}) {
    if (*content) Write("qvx.ini", content);
    const qvx::AboutTexts texts = qvx::LoadAboutTexts(FindInFolder);
    EXPECT_STREQ(texts.name, L"") << content;
    EXPECT_STREQ(texts.version, L"");
    EXPECT_STREQ(texts.subVersion, L"");
    EXPECT_STREQ(texts.iconFile, L"");
    EXPECT_STREQ(texts.mail, qvx::kContactAddress);
    EXPECT_STREQ(texts.group, qvx::kChatGroup);
    EXPECT_STREQ(qvx::LoadContactAddress(FindInFolder), qvx::kContactAddress);
  }
}

TEST_F(ProductTexts, AnIconFileThatIsNotThereIsNoIcon) {
  Write("qvx.ini", "[Product]\nIconFile=none.ico\n");
  EXPECT_STREQ(qvx::LoadAboutTexts(FindInFolder).iconFile, L"");
}

TEST_F(ProductTexts, TheReportAddressIsThatOfTheFile) {
  Write("qvx.ini", "[Product]\nEmail=me@here.example\n");
  EXPECT_STREQ(qvx::LoadContactAddress(FindInFolder), L"me@here.example");
}

TEST_F(ProductTexts, HelpIsTheFileThatTheProductNames) {
  Write("help.chm", "help");
  Write("qvx.ini", "[Product]\nHelpFile=help.chm\n");
  const qvx::HelpTarget target = qvx::FindHelpFile(FindInFolder);
  EXPECT_TRUE(target.found);
  EXPECT_EQ(fs::path(static_cast<const wchar_t*>(target.path)), Folder() / "help.chm");
}

TEST_F(ProductTexts, HelpIsNotFoundWithoutItsKeyOrItsFile) {
  for (const char* content :
       {"[Product]\n", "[Product]\nHelpFile=\n", "[Product]\nHelpFile=no.chm\n"}) {
    Write("qvx.ini", content);
    EXPECT_FALSE(qvx::FindHelpFile(FindInFolder).found) << content;
  }
}

TEST_F(ProductTexts, HelpWithoutAProductFileOrSectionHasAnEmptyPath) {
  for (const char* content : {"", "[Other]\nHelpFile=no.chm\n"}) {
    if (*content) Write("qvx.ini", content);
    const qvx::HelpTarget target = qvx::FindHelpFile(FindInFolder);
    EXPECT_TRUE(target.found) << content;
    EXPECT_TRUE(target.path.IsEmpty()) << content;
  }
}
