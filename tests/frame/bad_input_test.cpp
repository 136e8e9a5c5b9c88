// The result of every bad file and bad value: the default, without a message. One table for each
// file; no case may hang, and the native build runs under the sanitizers.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "frame/start/first_start.h"
#include "frame/settings/menu_setting.h"
#include "frame/settings/recent_commands.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "kernel/settings.h"
#include "kernel/tregproperty.h"
#include "menu/menu_item.h"
#include "screenmenu/palette_settings.h"
#include "tests/doubles/loaded_menu.h"
#include "tests/doubles/silent_ui.h"
#ifndef _WIN32
#include "kernel/native/file_store.h"
#endif

namespace {

namespace fs = std::filesystem;

// Makes a file unreadable while it exists: an exclusive lock on Windows, a folder of that name
// elsewhere (the superuser ignores permissions).
class Lock {
 public:
  explicit Lock(const fs::path& path) : m_path(path) {
#ifdef _WIN32
    m_handle = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
#else
    fs::remove(path);
    fs::create_directory(path);
#endif
  }
  ~Lock() {
#ifdef _WIN32
    ::CloseHandle(m_handle);
#endif
    fs::remove(m_path);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  fs::path m_path;
#ifdef _WIN32
  HANDLE m_handle;
#endif
};

// The same bytes on every machine and in every run.
std::string RandomBytes(uint32_t seed, size_t count) {
  std::string bytes(count, 0);
  for (char& byte : bytes) {
    seed = seed * 1664525u + 1013904223u;
    byte = static_cast<char>(seed >> 24);
    if (byte == '[') byte = 'x';  // '[' would end the section of a product file
  }
  return bytes;
}

class BadInput : public ::testing::Test {
 protected:
  static constexpr double kNobodysRelease = 93.2;

  static void SetUpTestSuite() {
    s_folder = fs::temp_directory_path() / "qvx_bad_input_test";
    fs::remove_all(s_folder);
    fs::create_directories(s_folder);
  }
  static void TearDownTestSuite() { fs::remove_all(s_folder); }
  void SetUp() override {
    Begin(L"bad");
    g_dHostVersion = kNobodysRelease;
    ResetSettings();
    g_dHostVersion = kNobodysRelease;
  }
  void TearDown() override { devhost::TheHost().End(); }

  static void Begin(const wchar_t* profile) {
    devhost::HostOptions options;
    options.profile = profile;
    options.supportPath = {s_folder.wstring()};
    devhost::TheHost().Begin(options, &s_ui, nullptr);
  }
  static void Write(const char* name, const std::string& bytes) {
    std::ofstream(s_folder / name, std::ios::binary) << bytes;
  }

  static SilentUi s_ui;
  static fs::path s_folder;
};
SilentUi BadInput::s_ui;
fs::path BadInput::s_folder;

// The title and the help file as the start reads them.
struct ProductFile {
  std::wstring title, helpFile;
};

ProductFile ReadProduct() {
  ProductFile product;
  wchar_t path[QvxExport::kPathUnits];
  void* buffer = nullptr;
  if (!QvxExport::FindFile(L"qvx.ini", path) ||
      !QvxExport::GetIniFileToIniBufer(path, L"Product", &buffer))
    return product;
  const wchar_t* title = QvxExport::GetIniBuferValueByKey(buffer, L"Title");
  const wchar_t* help = QvxExport::GetIniBuferValueByKey(buffer, L"HelpFile");
  product = {title ? title : L"", help ? help : L""};
  QvxExport::FreeIniBuffer(buffer);
  return product;
}

std::vector<std::wstring> FirstStartList() {
  TWCStringList names;
  FindFirstStartModules(names);
  std::vector<std::wstring> out;
  for (int i = 0; i < names.Length(); ++i) out.emplace_back(names[i]);
  return out;
}

using List = std::vector<std::wstring>;

std::string X(size_t count) { return std::string(count, 'x'); }
std::wstring WideX(size_t count) { return std::wstring(count, L'x'); }

TRegProperty UserKey(const wchar_t* folder) {
  TRegProperty key(GetRegLocation(), folder);
  key.SetTopRootKey(HKEY_CURRENT_USER);
  return key;
}

}  // namespace

TEST_F(BadInput, TheProductFileReturnsItsValuesOrNone) {
  const struct {
    const char* what;
    std::string bytes;
    std::wstring title, helpFile;
  } cases[] = {
      {"empty", "", L"", L""},
      {"only a section", "[Product]", L"", L""},
      {"the section is not closed", "[Product\nTitle=a\n", L"", L""},
      {"another section", "[Products]\nTitle=a\n", L"", L""},
      {"no section", "Title=a\n", L"", L""},
      {"cut in a key", "[Product]\nTitle=a\nHelpF", L"a", L""},
      {"cut behind the sign", "[Product]\nTitle=a\nHelpFile=", L"a", L""},
      {"an open quote", "[Product]\nTitle=\"a\nHelpFile=b\n", L"\"a", L"b"},
      {"a lone quote", "[Product]\nTitle=\"\nHelpFile=b\n", L"\"", L"b"},
      {"no key", "[Product]\n=a\nHelpFile=b\n", L"", L"b"},
      {"254 characters", "[Product]\nTitle=" + X(248) + "\nHelpFile=b\n", WideX(248), L"b"},
      {"255 characters", "[Product]\nTitle=" + X(249) + "\nHelpFile=b\n", WideX(249), L"b"},
      {"256 characters", "[Product]\nTitle=" + X(250) + "\nHelpFile=b\n", WideX(250), L"b"},
      {"far above", "[Product]\nTitle=" + X(100000) + "\nHelpFile=b\n", WideX(100000), L"b"},
      {"a long line before", X(1000) + "\n[Product]\nTitle=a\n", L"a", L""},
      {"a long key", "[Product]\n" + X(1000) + "=a\nHelpFile=b\n", L"", L"b"},
      {"a byte order mark", "\xEF\xBB\xBF[Product]\nTitle=a\n", L"", L""},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    Write("qvx.ini", one.bytes);
    const ProductFile product = ReadProduct();
    EXPECT_EQ(product.title, one.title);
    EXPECT_EQ(product.helpFile, one.helpFile);
  }
  // The system chooses the replacement of half a character.
  Write("qvx.ini", "[Product]\nTitle=a\xCE");
  EXPECT_EQ(ReadProduct().title.substr(0, 1), L"a");
  EXPECT_EQ(ReadProduct().title.size(), 2u) << "cut in a character";
  fs::remove(s_folder / "qvx.ini");
  EXPECT_EQ(ReadProduct().title, L"") << "missing";
  const Lock lock(s_folder / "qvx.ini");
  EXPECT_EQ(ReadProduct().title, L"") << "locked";
}

TEST_F(BadInput, EveryPrefixOfAProductFileAndRandomBytesAreRead) {
  const std::string whole =
      "; c\r\n[Product]\r\nTitle=\xC6\xE6\xCE\xAC\r\nHelpFile = \"h.chm\"\r\n";
  for (size_t length = 0; length < whole.size(); ++length) {
    Write("qvx.ini", whole.substr(0, length));
    const ProductFile product = ReadProduct();
    EXPECT_LE(product.title.size(), 2u) << length;
    EXPECT_LE(product.helpFile.size(), 6u) << length;
  }
  for (uint32_t seed = 1; seed <= 100; ++seed) {
    Write("qvx.ini", RandomBytes(seed, 37 * seed));
    EXPECT_EQ(ReadProduct().title, L"") << seed;
    Write("qvx.ini", "[Product]\n" + RandomBytes(seed, 3000) + "\nTitle=last\n");
    EXPECT_FALSE(ReadProduct().title.empty()) << seed;
  }
}

TEST_F(BadInput, TheFirstStartListReturnsTheNamesThatExist) {
  Write("a.arx", "");
  const struct {
    const char* what;
    std::string bytes;
    List names;
  } cases[] = {
      {"empty", "", {}},
      {"only line ends", "\r\n\n\r\n", {}},
      {"no last line end", "a.arx", {L"a.arx"}},
      {"cut in a name", "a.arx\na.ar", {L"a.arx"}},
      {"an open quote", "\"a.arx\n\"", {L"a.arx"}},
      {"254 characters", "a.arx " + X(248) + "\na.arx\n", {L"a.arx", L"a.arx"}},
      {"255 characters", "a.arx " + X(249) + "\na.arx\n", {L"a.arx", L"a.arx"}},
      {"256: the last is a line of its own", "a.arx " + X(250) + "\na.arx\n", {L"a.arx", L"a.arx"}},
      {"the name behind 255", X(255) + "a.arx\n", {L"a.arx"}},
      {"the name across 255", X(253) + " a.arx\n", {}},
      {"510 and a name", X(510) + "a.arx\n", {L"a.arx"}},
      {"255 two-byte characters",
       [] {
         std::string text;
         for (int i = 0; i < 255; ++i) text += "\xCE\xAC";
         return text + "a.arx\n";
       }(),
       {L"a.arx"}},
      {"a zero ends the line", std::string("a.arx\0b\na.arx\n", 14), {L"a.arx", L"a.arx"}},
      {"half a character at the end", "a.arx\n\xCE", {L"a.arx"}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    Write("dmload.rx", one.bytes);
    EXPECT_EQ(FirstStartList(), one.names);
  }
  fs::remove(s_folder / "dmload.rx");
  EXPECT_EQ(FirstStartList(), List{}) << "missing";
  const Lock lock(s_folder / "dmload.rx");
  EXPECT_EQ(FirstStartList(), List{}) << "locked";
}

TEST_F(BadInput, AFirstStartListOfRandomBytesHasNoNames) {
  for (uint32_t seed = 1; seed <= 100; ++seed) {
    Write("dmload.rx", RandomBytes(seed, 41 * seed));
    EXPECT_EQ(FirstStartList(), List{}) << seed;
  }
  fs::remove(s_folder / "dmload.rx");
}

TEST_F(BadInput, TextThatIsNoNumberKeepsTheDefault) {
  for (const wchar_t* text : {L"", L" ", L"x", L"12x", L"1 2", L"0x10", L"一"}) {
    UserKey(L"Settings\\ScreenMenu").SetValue(L"SizeX", text);
    qvx::PaletteSettings settings;
    qvx::LoadPaletteSettings(settings);
    EXPECT_EQ(settings.sizeX, 76) << fs::path(text);
  }
}

TEST_F(BadInput, AGlobalOfTheWrongTypeKeepsItsDefault) {
  TRegProperty key = UserKey(L"Settings");
  key.SetValue(L"g_nSpeedMenu", L"often");
  key.SetValue(L"g_menuColors[1]", L"red");
  key.SetValue(L"g_menuColors[2]", -1);
  key.SetValue(L"g_menuColors[3]", 0x1000000);
  key.SetValue(L"g_sRecentFiles", 7);
  LoadSettings();
  EXPECT_EQ(g_nSpeedMenu, 3);
  EXPECT_EQ(g_menuColors[1], 0xEFE4D8u);
  EXPECT_EQ(g_menuColors[2], 0xE6D5C2u) << "no colour: the highest byte says something else";
  EXPECT_EQ(g_menuColors[3], 0xDCC6ACu);
  EXPECT_STREQ(g_sRecentFiles.GetString(), L"");
}

TEST_F(BadInput, ASavedMenuOfAnyLengthIsReadUnchanged) {
  for (const size_t length : {0, 1, 254, 255, 256, 259, 260, 261, 5000}) {
    SaveMenuSetting(WideX(length).c_str());
    TWCString value;
    EXPECT_TRUE(LoadMenuSetting(value));
    EXPECT_EQ(value.Length(), static_cast<int>(length));
  }
  TRegProperty key = UserKey(L"bad");
  key.SetValue(L"Menu", 5);
  TWCString value(L"kept");
  EXPECT_FALSE(LoadMenuSetting(value)) << "a number is no menu";
  EXPECT_STREQ(value, L"kept");
}

TEST_F(BadInput, AProfileWithoutANameKeepsItsMenuUnderSettings) {
  devhost::TheHost().End();
  Begin(L"");
  SaveMenuSetting(L"D:\\own");
  CString text;
  EXPECT_TRUE(UserKey(L"Settings").GetValue(L"Menu", text));
  EXPECT_STREQ(text.GetString(), L"D:\\own");
  TWCString value;
  EXPECT_TRUE(LoadMenuSetting(value));
  EXPECT_STREQ(value, L"D:\\own");
}

TEST_F(BadInput, RecentCommandsOfAnyFormGiveAList) {
  std::wstring commas(5000, L','), many, random;
  for (int i = 0; i < 5000; ++i) many += L"c" + std::to_wstring(i) + L",";
  for (const char byte : RandomBytes(5, 5000))
    random += static_cast<wchar_t>(1 + static_cast<unsigned char>(byte) % 255);
  const struct {
    std::wstring text;
    int atLeast, atMost;
  } cases[] = {{L"", 0, 0},     {L",", 0, 0},      {commas, 0, 0},           {L"no comma", 0, 0},
               {many, 1, 5000}, {random, 0, 5000}, {WideX(300) + L",", 1, 1}};
  for (const auto& one : cases) {
    UserKey(L"Settings").SetValue(L"RecentCmd", one.text.c_str());
    LoadedMenuDouble menu;
    LoadRecentCommands();
    const TMenuStack& recent = menu.system.m_recent;
    EXPECT_GE(recent.Length(), one.atLeast);
    EXPECT_LE(recent.Length(), one.atMost);
  }
  UserKey(L"Settings").SetValue(L"RecentCmd", 9);
  LoadedMenuDouble menu;
  LoadRecentCommands();
  EXPECT_EQ(menu.system.m_recent.Length(), 0) << "a number is no list";
}

#ifndef _WIN32
TEST_F(BadInput, AUserWithoutRightsOnTheMachinesKeyProcessesTheListAtEachStart) {
  Write("a.arx", "");
  Write("dmload.rx", "a.arx\n");
  RefuseSettingsWrites(true);
  for (int start = 0; start < 3; ++start) {
    EXPECT_FALSE(HasStartedBefore(24.0)) << start;
    EXPECT_EQ(FirstStartList(), List{L"a.arx"}) << start;
  }
  RefuseSettingsWrites(false);
  EXPECT_FALSE(HasStartedBefore(24.0));
  EXPECT_TRUE(HasStartedBefore(24.0)) << "with rights it is once";
}

TEST_F(BadInput, ASettingsFileOfRandomBytesIsIgnored) {
  const std::string path = (s_folder / "settings.txt").string();
  for (uint32_t seed = 1; seed <= 100; ++seed) {
    Write("settings.txt", RandomBytes(seed, 53 * seed));
    UseSettingsFile(path.c_str());
    LoadSettings();
    EXPECT_EQ(g_nSpeedMenu, 3) << seed;
  }
  UseSettingsFile(nullptr);
}
#endif
