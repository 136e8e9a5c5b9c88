// qmn which: each step of the search is reported, and the result is the module's.
#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "tests/qmn/qmn_testing.h"
#include "tools/qmn/qmn_tool.h"
#ifndef _WIN32
#include "kernel/native/file_store.h"
#endif

namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != text.npos; }

class WhichTest : public QmnTest {
 protected:
  // A release that is not installed anywhere, so that settings of a real registry are neither read
  // nor changed.
  static constexpr wchar_t kProfileKey[] = L"Software\\Quivera\\QVX\\R91.4\\QVX-1\\test";

  void SetUp() override { Forget(); }
  void TearDown() override { Forget(); }

  static void Forget() {
#ifdef _WIN32
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Quivera\\QVX\\R91.4");
#else
    UseSettingsFile(nullptr);
#endif
  }
  static void Remember(const wchar_t* folder, const wchar_t* name, const wchar_t* text) {
    TRegProperty key(L"Software\\Quivera\\QVX\\R91.4\\QVX-1", folder);
    key.SetTopRootKey(HKEY_CURRENT_USER);
    key.SetValue(name, text);
  }
  QmnRun Which(const std::string& profile = "test") const {
    return Qmn(
        {"which", "--product", Utf8Name(m_folder), "--profile", profile, "--host-version", "91.4"});
  }
};

}  // namespace

TEST_F(WhichTest, WithoutASettingTheDefaultWins) {
  const std::string file = Write(u8"qvx.qmn", "");
  const QmnRun run = Which();
  EXPECT_EQ(run.code, kFine) << run.err;
  EXPECT_TRUE(Has(run.out,
                  "FindMenuBase:\n  Menu of Software\\Quivera\\QVX\\R91.4\\QVX-1\\test: not set\n"
                  "  qvx.qmn\n"))
      << run.out;
  EXPECT_TRUE(Has(run.out, "qvx.qmn: found\n"));
  EXPECT_TRUE(Has(run.out, "\nmenu: ")) << run.out;
  EXPECT_EQ(run.out.substr(run.out.rfind("menu: ") + 6), file + "\n");
}

TEST_F(WhichTest, TheSavedMenuOfTheProfileWinsOverTheDefault) {
  Write(u8"qvx.qmn", "");
  const std::string own = Write(u8"own.qmn", "");
  Remember(L"test", L"Menu", L"own");
  const QmnRun run = Which();
  EXPECT_TRUE(Has(run.out, "\\test: \"own\"\n  own.qmn\n")) << run.out;
  EXPECT_TRUE(Has(run.out, "menu: " + own + "\n")) << run.out;
  EXPECT_TRUE(Has(Which("other").out, "\\other: not set\n")) << "of this profile only";
}

TEST_F(WhichTest, AProfileWithoutANameUsesSettings) {
  Write(u8"own.qmn", "");
  Remember(L"Settings", L"Menu", L"own");
  EXPECT_TRUE(Has(Which("").out, "\\Settings: \"own\"\n"));
  EXPECT_EQ(Which("").code, kFine);
}

TEST_F(WhichTest, AMissingMenuFallsBackSourceBeforeCompiled) {
  const std::string file = Write(u8"qvx.qmn", "");
  Write(u8"qvx.qmc", "");
  Remember(L"test", L"Menu", L"gone");
  const QmnRun run = Which();
  const size_t source = run.out.find("  gone.qmn\n"), compiled = run.out.find("  gone.qmc\n");
  const size_t last = run.out.find("  qvx.qmn\n");
  EXPECT_TRUE(source < compiled && compiled < last && last != std::string::npos) << run.out;
  EXPECT_FALSE(Has(run.out, "  qvx.qmc\n")) << "the source was there";
  EXPECT_TRUE(Has(run.out, "menu: " + file + "\n"));
}

TEST_F(WhichTest, ACompiledFileAloneGivesABaseNameAndNoMenuAtStart) {
  Write(u8"qvx.qmc", "");
  const QmnRun run = Which();
  EXPECT_EQ(run.code, kFindings);
  EXPECT_TRUE(Has(run.out, "qvx.qmc: found\n")) << run.out;
  EXPECT_TRUE(Has(run.out, "menu: none, there is only the compiled file"));
}

TEST_F(WhichTest, AFailedSearchIsReportedAndGivesOne) {
  const QmnRun run = Which();
  EXPECT_EQ(run.code, kFindings);
  EXPECT_TRUE(Has(run.out, "  base: none\n"));
  EXPECT_TRUE(run.out.ends_with("menu: none\n")) << run.out;
}

TEST_F(WhichTest, TheMenuTypeChoosesTheDefaultFile) {
  Write(u8"qvx2d.qmn", "");
  Remember(L"Settings", L"g_iMenuType", L"2");
  const QmnRun run = Which();
  EXPECT_TRUE(Has(run.out, "DefaultMenuBase, with g_iMenuType 2:\n  qvx2d.qmn\n")) << run.out;
}

TEST_F(WhichTest, FoldersAreSearchedInTheirOrder) {
  std::filesystem::create_directory(m_folder / "b");
  Write(u8"qvx.qmn", "");
  const std::string second = Utf8Name(m_folder / "b" / "qvx.qmn");
  WriteBytes(m_folder / "b" / "qvx.qmn", "");
  const QmnRun run = Qmn({"which", "--product", Utf8Name(m_folder / "b"), "--product",
                          Utf8Name(m_folder), "--host-version", "91.4"});
  EXPECT_TRUE(Has(run.out, "menu: " + second + "\n")) << run.out;
}

TEST_F(WhichTest, ARememberedMenuTooLongForAPathIsTreatedAsMissing) {
  Write(u8"qvx.qmn", "");
  Remember(L"test", L"Menu", std::wstring(260, L'm').c_str());
  EXPECT_TRUE(Has(Which().out, "  too long, as if it weren't there\n  qvx.qmn\n")) << Which().out;
  Remember(L"test", L"Menu", std::wstring(259, L'm').c_str());
  EXPECT_FALSE(Has(Which().out, "too long"));
}

#ifdef _WIN32
TEST_F(WhichTest, ASettingsFileIsForSystemsWithoutARegistry) {
  const QmnRun run = Qmn({"which", "--registry", Write(u8"s.txt", "")});
  EXPECT_EQ(run.code, kWrongUsage);
}
#else
TEST_F(WhichTest, TheSettingsFileIsRead) {
  const std::string own = Write(u8"图.qmn", "");
  const std::string settings =
      Write(u8"s.txt", "user\tSoftware\\\\Quivera\\\\QVX\\\\R91.4\\\\QVX-1\\\\test\tMenu\ts\t图\n");
  const QmnRun run = Qmn({"which", "--product", Utf8Name(m_folder), "--profile", "test",
                          "--host-version", "91.4", "--registry", settings});
  EXPECT_EQ(run.code, kFine) << run.err;
  EXPECT_TRUE(Has(run.out, "menu: " + own + "\n")) << run.out;
}
#endif

TEST_F(WhichTest, AMissingSettingsFileIsAFileError) {
  const QmnRun run = Qmn({"which", "--registry", Name(u8"none.txt")});
  EXPECT_EQ(run.code, kFileTrouble);
  EXPECT_TRUE(Has(run.err, "can't be read"));
}
