// The module from load to unload with one of its files damaged: the messages to the user, and that
// everything else works. The tests of each reader have the details.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "tests/module/win/module_test.h"

namespace {

namespace fs = std::filesystem;

enum class Form { kMissing, kLocked, kEmpty, kCut, kRandom };
constexpr Form kForms[] = {Form::kMissing, Form::kLocked, Form::kEmpty, Form::kCut, Form::kRandom};
const char* NameOf(Form form) {
  constexpr const char* kNames[] = {"missing", "locked", "empty", "cut", "random"};
  return kNames[static_cast<int>(form)];
}

// An exclusive lock, as of another program.
class Lock {
 public:
  explicit Lock(const fs::path& path)
      : m_file(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~Lock() { ::CloseHandle(m_file); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  bool Holds() const { return m_file != INVALID_HANDLE_VALUE; }

 private:
  HANDLE m_file;
};

// The same bytes in every run. None starts a comment, which in a menu source would not end.
std::string RandomBytes(size_t count) {
  std::string bytes(count, 0);
  uint32_t seed = 4711;
  for (char& byte : bytes) {
    seed = seed * 1664525u + 1013904223u;
    byte = static_cast<char>(seed >> 24);
    if (byte == '/') byte = 'x';
  }
  return bytes;
}

std::string ReadAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class BadFiles : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    HostProcess::Get().CopyProductFile(L"qvx.dll");
    HostProcess::Get().Write(L"qvx.ini", "[Product]\nTitle=Test\nHelpFile=a.chm\n");
    HostProcess::Get().Write(L"dmload.rx", "missing.arx\r\nmissing2.arx\r\n");
    HostProcess::Get().Write(L"qvxtips.txt", "one\r\ntwo\r\nthree\r\n");
    // The tips are read at the start but not shown: a modal dialog would block the test.
    SetNumber(L"Settings", L"g_nCustomFlag", 0);
    SetNumber(L"Tips", L"StartUp", 0);
  }
  void TearDown() override {
    Module::TearDown();
    for (const wchar_t* name : {L"qvx.dll", L"qvx.ini", L"dmload.rx", L"qvxtips.txt", L"own.qmc"})
      HostProcess::Get().Remove(name);
    SetNumber(L"Settings", L"g_nCustomFlag", 2);
    SetNumber(L"Tips", L"StartUp", 1);
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
  }
  static fs::path PathOf(const std::string& name) {
    return fs::path(HostProcess::Get().Folder()) / name;
  }

  // Damages a good file; it stays locked as long as the result exists.
  static std::optional<Lock> Damage(const std::string& name, Form form) {
    const fs::path path = PathOf(name);
    const std::string good = ReadAll(path);
    if (form == Form::kMissing) fs::remove(path);
    if (form == Form::kLocked) return std::optional<Lock>(std::in_place, path);
    const std::string bytes = form == Form::kCut      ? good.substr(0, good.size() / 2)
                              : form == Form::kRandom ? RandomBytes(3000)
                                                      : std::string();
    if (form != Form::kMissing) std::ofstream(path, std::ios::binary) << bytes;
    return {};
  }

  struct Life {
    std::string printed, boxes, shell;
    bool hasIcons = false;
  };
  // Each is a first start, so that the list of modules is read too.
  Life Live() {
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
    StartAnew();
    const int windows = HostProcess::Get().ChildWindows();
    Life life;
    EXPECT_TRUE(LoadModule());
    BringUp();
    life.shell = Shell();
    life.hasIcons = IsMapped(L"qvx.dll");
    EXPECT_TRUE(UnloadModule());
    EXPECT_FALSE(IsMapped(L"qvx_initstart.arx"));
    EXPECT_EQ(HostProcess::Get().ChildWindows(), windows);
    life.printed = Printed();
    life.boxes = Told("messagebox", "text");
    return life;
  }
  static std::string Loading(const std::string& name) {
    return devhost::Utf8(L"\n加载奇维菜单文件: ") + PathOf(name).string();
  }
};

// Without its file the tip dialog opens with a message, whatever the switch; tested by a play.
bool OpensADialog(const std::string& name, Form form) {
  return name == "qvxtips.txt" && (form == Form::kMissing || form == Form::kLocked);
}

}  // namespace

TEST_F(BadFiles, AnUnreadableProductFileListTipFileOrIconLibraryIsIgnoredSilently) {
  for (const char* name : {"qvx.ini", "dmload.rx", "qvxtips.txt", "qvx.dll"}) {
    const std::string good = ReadAll(PathOf(name));
    ASSERT_FALSE(good.empty()) << name;
    for (const Form form : kForms) {
      if (OpensADialog(name, form)) continue;
      SCOPED_TRACE(std::string(name) + " " + NameOf(form));
      {
        const auto lock = Damage(name, form);
        ASSERT_TRUE(!lock || lock->Holds());
        const Life life = Live();
        EXPECT_EQ(life.printed, Loading("qvx.qmn"));
        EXPECT_EQ(life.boxes, "");
        EXPECT_TRUE(Contains(life.shell, "\"label\":\"D\"")) << life.shell;
        EXPECT_EQ(life.hasIcons, std::string(name) != "qvx.dll");
      }
      std::ofstream(PathOf(name), std::ios::binary) << good;
    }
  }
}

TEST_F(BadFiles, AnUnreadableMenuPrintsItsMessageAndThePaletteHasNoRows) {
  const std::string good = ReadAll(PathOf("qvx.qmn"));
  for (const Form form : {Form::kLocked, Form::kEmpty, Form::kCut, Form::kRandom}) {
    SCOPED_TRACE(NameOf(form));
    {
      const auto lock = Damage("qvx.qmn", form);
      const Life life = Live();
      if (form == Form::kLocked)
        EXPECT_EQ(life.printed, "\nCould not open file " + PathOf("qvx.qmn").string());
      else
        EXPECT_TRUE(Contains(life.printed, devhost::Utf8(L"\n语法错误，第"))) << life.printed;
      EXPECT_EQ(life.boxes, "");
      EXPECT_TRUE(Contains(life.shell, "\"exists\":true"));
      EXPECT_TRUE(Contains(life.shell, "\"rows\":[]")) << life.shell;
    }
    std::ofstream(PathOf("qvx.qmn"), std::ios::binary) << good;
  }
}

TEST_F(BadFiles, AMissingMenuIsReportedTwiceAndThereIsNoPalette) {
  HostProcess::Get().Remove(L"qvx.qmc");
  Damage("qvx.qmn", Form::kMissing);
  const Life life = Live();
  EXPECT_EQ(life.boxes, devhost::Utf8(L"\n找不到菜单文件!"));
  EXPECT_EQ(life.printed.rfind(devhost::Utf8(L"\n未找到所需的qmn菜单文件!"), 0), 0u)
      << life.printed;
  EXPECT_TRUE(Contains(life.shell, "\"exists\":false"));
}

TEST_F(BadFiles, AnUnreadableCompiledMenuShowsAMessageBox) {
  HostProcess::Get().CopyProductFile(L"qvxavi.qmc");
  const std::string good = ReadAll(PathOf("qvxavi.qmc"));
  fs::remove(PathOf("qvxavi.qmc"));
  devhost::TheHost().documents.New();
  ASSERT_TRUE(LoadModule());
  BringUp();
  for (const Form form : kForms) {
    SCOPED_TRACE(NameOf(form));
    std::ofstream(PathOf("own.qmc"), std::ios::binary) << good;
    const auto lock = Damage("own.qmc", form);
    StartAnew();
    Run(L"(TSetMenu \"own.qmc\")\n");
    const std::string box = Told("messagebox", "text");
    if (form == Form::kMissing)
      EXPECT_EQ(box, "");
    else if (form == Form::kLocked)
      EXPECT_EQ(box, devhost::Utf8(L"无法读取文件") + PathOf("own.qmc").string());
    else
      EXPECT_TRUE(box == "CArchiveException" || box == "CFileException") << box;
    EXPECT_TRUE(Contains(Shell(), "\"exists\":true"));
  }
  Forget(L"Settings", L"Menu");
}

// Texts and numbers of every form in every value that the module reads at its start.
TEST_F(BadFiles, TheModuleStartsWithRegistryValuesOfAnyForm) {
  const struct {
    const wchar_t *folder, *name;
  } values[] = {
      {L"Settings", L"RecentCmd"},
      {L"Settings", L"Menu"},
      {L"Settings", L"g_bHideCaption"},
      {L"Settings", L"g_bAutoOpenRecent"},
      {L"Settings", L"g_sRecentFiles"},
      {L"Settings", L"g_iMenuType"},
      {L"Settings\\ScreenMenu", L"Obsolete"},
      {L"Settings\\ScreenMenu", L"Visible"},
      {L"Settings\\ScreenMenu", L"Alignment"},
      {L"Settings\\ScreenMenu", L"SizeX"},
      {L"Settings\\ScreenMenu", L"ActiveSubMenu"},
      {L"Settings\\ScreenMenu", L"ScrollBar"},
      {L"Settings\\ScreenMenu", L"LimitHeight"},
      {L"Settings\\ScreenMenu", L"DefaultOpenFirst"},
      {L"Tips", L"Indicator"},
      {L"Tips", L"TimeStamp"},
  };
  for (const auto& value : values) {
    for (const std::wstring& text :
         {std::wstring(), std::wstring(L"often"), std::wstring(3000, L'x'), std::wstring(L",,,")}) {
      SCOPED_TRACE(devhost::Utf8(value.name) + " " + std::to_string(text.size()));
      SetText(value.folder, value.name, text);
      const Life life = Live();
      EXPECT_TRUE(Contains(life.shell, "\"label\":\"D\"")) << life.shell;
      EXPECT_EQ(life.boxes, "");
    }
    Forget(value.folder, value.name);
  }
}
