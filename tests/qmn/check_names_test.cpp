// Rules that need other files: the icon library and the list of commands.
#include "tests/qmn/check_testing.h"
#include "tools/qmn/command_list.h"
#include "tools/qmn/icon_library.h"

namespace {

class CheckNames : public QmnTest {};

void Put(std::string& bytes, size_t at, size_t width, size_t value) {
  for (size_t i = 0; i < width; ++i) bytes[at + i] = static_cast<char>(value >> 8 * i);
}

constexpr size_t kHeader = 0x80, kSections = kHeader + 24 + 240, kResources = 0x400;
constexpr size_t kAddress = 0x3000;

// The smallest module that has these bitmaps: headers, one section, and the two upper levels of the
// resource folder.
std::string Library(const std::vector<std::string>& names) {
  std::string bytes(kResources, '\0');
  bytes.replace(0, 2, "MZ");
  Put(bytes, 0x3C, 4, kHeader);
  bytes.replace(kHeader, 2, "PE");
  Put(bytes, kHeader + 6, 2, 1);     // sections
  Put(bytes, kHeader + 20, 2, 240);  // size of the optional header
  Put(bytes, kHeader + 24, 2, 0x20B);
  Put(bytes, kHeader + 24 + 112 + 16, 4, kAddress);
  Put(bytes, kSections + 12, 4, kAddress);
  Put(bytes, kSections + 16, 4, 0x1000);
  Put(bytes, kSections + 20, 4, kResources);
  std::string folder(2 * 16 + 2 * 8, '\0');
  Put(folder, 14, 2, 2);  // two types: icons and bitmaps
  Put(folder, 16, 4, 3);
  Put(folder, 20, 4, 0x80000000 + 32);
  Put(folder, 24, 4, 2);
  Put(folder, 28, 4, 0x80000000 + 32);
  const size_t entries = 32 + 16;
  folder.resize(entries + 8 * names.size(), '\0');
  Put(folder, 32 + 12, 2, names.size());
  for (size_t i = 0; i < names.size(); ++i) {
    Put(folder, entries + 8 * i, 4, 0x80000000 + folder.size());
    std::string text(2 + 2 * names[i].size(), '\0');
    Put(text, 0, 2, names[i].size());
    for (size_t j = 0; j < names[i].size(); ++j) text[2 + 2 * j] = names[i][j];
    folder += text;
  }
  return bytes + folder;
}

TEST_F(CheckNames, BitmapsAreReadFromTheResourcesOfAModule) {
  EXPECT_EQ(BitmapNames(Library({"BMP_A", "Bmp_B"})), (NameSet{"bmp_a", "bmp_b"}));
  EXPECT_EQ(BitmapNames(Library({})), NameSet{});
}

// Each cut must be detected, and no read may leave the bytes.
TEST_F(CheckNames, ATruncatedModuleIsNoLibrary) {
  const std::string bytes = Library({"BMP_A", "BMP_B"});
  for (size_t size = 0; size < bytes.size(); ++size)
    EXPECT_FALSE(BitmapNames(bytes.substr(0, size))) << size;
  EXPECT_FALSE(
      BitmapNames("no module at all, but more than 64 bytes, so that it has a header offset "));
}

TEST_F(CheckNames, DamagedBytesAreRead) {
  const std::string bytes = Library({"BMP_A", "BMP_B"});
  for (size_t at = 0; at < bytes.size(); ++at)
    for (const char value : {'\xFF', '\x80', '\1'}) {
      std::string damaged = bytes;
      damaged[at] = value;
      BitmapNames(damaged);
    }
}

TEST_F(CheckNames, AnImageThatTheLibraryLacksIsReported) {
  const std::string library = Write(u8"qvx.dll", Library({"BMP_A"}));
  const std::string source = Framed("icons", "B = \"BMP_B\",\"help\"\n");
  const QmnRun run = Qmn({"check", "-", "--icons", library, "--ignore", "icon-unused"}, source);
  EXPECT_EQ(run.out,
            "-:6:5: warning: the icon library has no bitmap \"BMP_B\" [QMN072]\n"
            "B = \"BMP_B\",\"help\"\n    ^~~~~~~\n");
  EXPECT_EQ(Qmn({"check", "-", "--ignore", "icon-unused"}, source).out, "");
}

#ifdef QVX_ICON_LIBRARY
TEST_F(CheckNames, TheProductsLibraryHasTheImagesOfItsMenus) {
  const QmnRun run = Qmn({"check", Utf8Name(ProductFolder()), "--icons", QVX_ICON_LIBRARY});
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "4 files checked: no findings\n");
}
#endif

TEST_F(CheckNames, AFileThatIsNoLibraryIsReported) {
  const std::string text = Write(u8"a.dll", "text");
  EXPECT_EQ(Qmn({"check", "-", "--icons", text}, kGoodSource).err,
            text +
                ": error: this is no icon library; expected a .dll with bitmaps\n"
                "0 files checked: no findings; 1 not read\n");
}

TEST_F(CheckNames, AListHasCommandsFunctionsAndComments) {
  const KnownNames names = ReadCommandList(
      "\xEF\xBB\xBF# comment\r\nLINE\r\n  TWall  # walls\r\n(GetOrtho)\r\n\r\n( Set )\n");
  EXPECT_EQ(names.commands, (NameSet{"line", "twall"}));
  EXPECT_EQ(names.functions, (NameSet{"getortho", "set"}));
}

std::string Findings(const std::string& command) {
  CheckSettings settings = ExampleSettings();
  settings.known = std::make_shared<KnownNames>(KnownNames{{"first", "line", "-layer"}, {"go"}});
  std::string codes;
  for (const std::string& code : CodesOf(Framed("lines", "[x]" + command + "\n"), settings))
    codes += code;
  return codes;
}

TEST_F(CheckNames, TheFirstWordOfEachCommandIsCompared) {
  for (const char* known : {"LINE", "^C^Cline;1;2", "'_.Line;x", "^C^C_.LINE;^C^CLINE;",
                            "-Layer;x;", "^C^C(go 1 \"x\");", "^C^C", ";", "^C^C(Go)"})
    EXPECT_EQ(Findings(known), "") << known;
  for (const char* unknown : {"LINES", "^C^CLINE;^C^CARC;", "'_.LIN", "x;LINE"})
    EXPECT_EQ(Findings(unknown), "QMN075") << unknown;
  EXPECT_EQ(Findings("^C^C(stop);"), "QMN076");
  EXPECT_EQ(Findings("*Walls"), "QMN051");
}

TEST_F(CheckNames, FunctionsOfSwitchesAndConditionsAreCompared) {
  const std::string list = Write(u8"commands.txt", "FIRST\n(GetS)\n");
  const std::string source =
      "MENU_TITLE = \"T\"\n***COMMON\n[{~=IsOff}First]^C^CFIRST;\nS [*SWITCH*]\n***SWITCH\n"
      "**S GET=GetS SET=SetS\n0=A,\"off\"\n***RESOURCE\nA = \"BMP_A\",\"\"\n";
  EXPECT_EQ(Qmn({"check", "-", "--commands", list}, source).out,
            "-:3:2: warning: the list of commands does not name the function 'IsOff' [QMN076]\n"
            "[{~=IsOff}First]^C^CFIRST;\n ^~~~~~~~~\n"
            "-:6:18: warning: the list of commands does not name the function 'SetS' [QMN076]\n"
            "**S GET=GetS SET=SetS\n                 ^~~~\n");
}

}  // namespace
