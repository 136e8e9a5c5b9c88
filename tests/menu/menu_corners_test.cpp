// Cases of the menu engine that no menu of the product has: single objects written and read, names
// in other alphabets, files that end at any token, lists that do not own their elements.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "adsdef.h"
#include "menu/menu_loading.h"
#include "menu/menu_scanner.h"
#include "tests/menu/menu_testing.h"

namespace {

using namespace std::string_literals;

// ---- each class written and read alone

template <class T>
std::string Written(T& object) {
  CMemFile file;
  {
    CArchive ar(&file, CArchive::store);
    object.Serialize(ar);
    ar.Close();
  }
  return {reinterpret_cast<const char*>(file.GetBufferPtr()),
          static_cast<size_t>(file.GetLength())};
}

// The name of the exception, if any.
template <class T>
std::string Read(T& object, const std::string& bytes) {
  CMemFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
  CArchive ar(&file, CArchive::load);
  try {
    object.Serialize(ar);
    return "";
  } catch (CArchiveException* exception) {
    exception->Delete();
    return "CArchiveException";
  }
}

TEST(ClassAlone, AResourceIsItsThreeStrings) {
  TMenuResItem item(L"a", L"b", L"c"), back;
  const std::string bytes = "\xFF\xFE\xFF\1a\0\xFF\xFE\xFF\1b\0\xFF\xFE\xFF\1c\0"s;
  EXPECT_EQ(Written(item), bytes);
  EXPECT_EQ(Read(back, bytes), "");
  EXPECT_TRUE(back.m_strName == L"a" && back.m_strImage == L"b" && back.m_strImage2 == L"c");
}

TEST(ClassAlone, ASwitchIsItsThreeStringsAndItsStates) {
  TMenuSwitchItem item, back;
  item.m_strName = L"n";
  item.m_strGetFn = L"g";
  item.m_strSetFn = L"s";
  item.m_states.Append(new TSwitchStateItem);
  item.m_states.At(0)->m_nValue = 7;
  item.m_states.At(0)->m_nIconIndex = 3;
  EXPECT_EQ(Written(item),
            "\xFF\xFE\xFF\1n\0\xFF\xFE\xFF\1g\0\xFF\xFE\xFF\1s\0\1\0\0\0\7\0\0\0"
            "\xFF\xFE\xFF\0\xFF\xFE\xFF\0\3\0\0\0"s);
  EXPECT_EQ(Read(back, Written(item)), "");
  ASSERT_EQ(back.m_states.Length(), 1);
  EXPECT_EQ(back.m_states.At(0)->m_nValue, 7);
  EXPECT_EQ(back.m_states.At(0)->m_nIconIndex, 3);
}

TEST(ClassAlone, AStateIsValueIconLabelAndIndex) {
  TSwitchStateItem item, back;
  item.m_nValue = -2;
  item.m_strIconName = L"i";
  item.m_strLabel = L"l";
  item.m_nIconIndex = -1;
  const std::string bytes = "\xFE\xFF\xFF\xFF\xFF\xFE\xFF\1i\0\xFF\xFE\xFF\1l\0\xFF\xFF\xFF\xFF"s;
  EXPECT_EQ(Written(item), bytes);
  EXPECT_EQ(Read(back, bytes), "");
  EXPECT_EQ(back.m_nValue, -2);
  EXPECT_TRUE(back.m_strIconName == L"i" && back.m_strLabel == L"l");
}

TEST(ClassAlone, ReadingABarAppendsToItsLines) {
  TMenuBar bar, back;
  bar.m_strName = L"n";
  bar.m_strKind = L"k";
  bar.m_objectMask.AppendLong(90, -5);
  bar.Append(new TMenuItem(L"l", L"c"));
  back.Append(new TMenuItem(L"first", L""));
  back.m_objectMask.AppendShort(62, 1);
  EXPECT_EQ(Read(back, Written(bar)), "");
  ASSERT_EQ(back.Length(), 2);
  EXPECT_TRUE(back.At(1)->m_strLabel == L"l");
  ASSERT_NE(back.m_objectMask.Head(), nullptr);
  EXPECT_EQ(back.m_objectMask.Head()->resval.rlong, -5);
  EXPECT_EQ(back.m_objectMask.Head()->Next(), nullptr);
}

TEST(ClassAlone, ALineIncludesItsSubMenu) {
  TMenuItem line(L"l", L"c"), back;
  line.m_pSubMenu = new TMenuBar;
  line.m_pSubMenu->Append(new TMenuItem(L"below", L"x"));
  line.m_strGrayFn = L"g";
  EXPECT_EQ(Read(back, Written(line)), "");
  ASSERT_NE(back.m_pSubMenu, nullptr);
  ASSERT_EQ(back.m_pSubMenu->Length(), 1);
  EXPECT_TRUE(back.m_pSubMenu->At(0)->m_strLabel == L"below");
  EXPECT_TRUE(back.m_strGrayFn == L"g");
}

TEST(ClassAlone, WithoutASystemASwitchIsWrittenAsNoneAndNoIndexIsValid) {
  TMenuSwitchItem owner;
  TMenuItem line(L"l", L""), back;
  const std::string none = Written(line);
  line.m_pSwitch = &owner;
  EXPECT_EQ(Written(line), none);
  std::string zero = none;
  zero.replace(zero.size() - 24, 4, 4, '\0');  // the switch index
  EXPECT_EQ(Read(back, zero), "CArchiveException");
  EXPECT_EQ(back.m_pSwitch, nullptr);
}

TEST(ClassAlone, AnEmptyTextReplacesTheOldOne) {
  TMenuItem line(L"l", L"c", L"i"), empty;
  line.m_strCheckFn = L"f";
  EXPECT_EQ(Read(line, Written(empty)), "");
  EXPECT_TRUE(line.m_strLabel.IsEmpty() && line.m_strCommand.IsEmpty());
  EXPECT_TRUE(line.m_strCheckFn.IsEmpty() && line.m_strIconName.IsEmpty());
}

TEST(ClassAlone, ReadingALineDoesNotDeleteASubMenuThatItDoesNotOwn) {
  TMenuBar foreign;
  foreign.m_bOwned = 0;
  TMenuItem line(L"l", L""), plain(L"p", L"");
  line.m_pSubMenu = &foreign;
  EXPECT_EQ(Read(line, Written(plain)), "");
  EXPECT_EQ(line.m_pSubMenu, nullptr);
  EXPECT_EQ(foreign.Length(), 0);
}

TEST(ClassAlone, AGroupWithANullTextIsWrittenWithAnEmptyOne) {
  TMenuBar bar;
  bar.m_objectMask.AppendString(8, L"");
  std::free(std::exchange(bar.m_objectMask.Head()->resval.rstring, nullptr));
  const std::string bytes = Written(bar);
  EXPECT_EQ(bytes.substr(8), "\1\0\0\0\x08\0\xFF\xFE\xFF\0\0\0\0\0"s);
}

TEST(ClassAlone, AnEmptyTitleInALongFileReplacesTheOldOne) {
  TMenuSystem written, back;
  for (int i = 0; i < 500; ++i) written.m_resources.Append(new TMenuResItem(L"name", L"a", L"b"));
  back.m_strTitle = L"old";
  EXPECT_EQ(LoadBytes(back, SaveBytes(written)), "");
  EXPECT_TRUE(back.m_strTitle.IsEmpty());
  EXPECT_EQ(back.m_resources.Length(), 500);
}

// ---- classes and owners

TEST(MenuClasses, RuntimeClassesHaveTheirNamesAndBases) {
  const TMenuResItem resource;
  const TMenuSwitchItem owner;
  const TSwitchStateItem state;
  const TMenuSystem system;
  EXPECT_STREQ(resource.GetRuntimeClass()->m_lpszClassName, "TMenuResItem");
  EXPECT_STREQ(owner.GetRuntimeClass()->m_lpszClassName, "TMenuSwitchItem");
  EXPECT_STREQ(state.GetRuntimeClass()->m_lpszClassName, "TSwitchStateItem");
  EXPECT_STREQ(system.GetRuntimeClass()->m_lpszClassName, "TMenuSystem");
  EXPECT_TRUE(system.IsKindOf(RUNTIME_CLASS(CObject)));
  EXPECT_FALSE(system.IsKindOf(RUNTIME_CLASS(TMenuBar)));
}

TEST(MenuClasses, ABarThatOwnsNoLinesLeavesThemAndTheirSubMenus) {
  TMenuItem line(L"l", L"");
  line.m_pSubMenu = new TMenuBar;
  line.m_pSubMenu->Append(new TMenuItem(L"below", L"x"));
  {
    TMenuBar view;
    view.SetOwnsElements(false);
    view.Append(&line);
  }
  EXPECT_EQ(line.m_pSubMenu->Length(), 1);
}

TEST(MenuClasses, TheFirstResourceIsFound) {
  TMenuSystem system;
  system.m_resources.Append(new TMenuResItem(L"first", L"", L""));
  system.m_resources.Append(new TMenuResItem(L"second", L"", L""));
  EXPECT_EQ(system.FindResource(L"first"), 0);
  EXPECT_EQ(system.FindResource(L"second"), 1);
  EXPECT_EQ(system.FindResource(L"First"), -1);
}

TEST(MenuClasses, AToolBarBlockThatIsTheFirstBlockIsFound) {
  TMenuSystem system;
  system.Append(new TMenuBar);
  EXPECT_EQ(PrepareToolBar(system), nullptr);
  system.At(0)->m_strName = L"TOOLBAR";
  EXPECT_EQ(PrepareToolBar(system), system.At(0));
}

// ---- names without regard to case

struct NamePair {
  const wchar_t* upper;
  const wchar_t* lower;
  bool equal;
};

TEST(NamesWithoutCase, LettersOfTheCodePagesFoldAndSignsBetweenThemDoNot) {
  const NamePair pairs[] = {
      {L"AZ", L"az", true},          {L"@", L"`", false},           {L"[", L"{", false},
      {L"\xC0", L"\xE0", true},      {L"\xDE", L"\xFE", true},      {L"\xD7", L"\xF7", false},
      {L"\xDF", L"\xFF", false},     {L"\xBF", L"\xDF", false},     {L"\x391", L"\x3B1", true},
      {L"\x3A9", L"\x3C9", true},    {L"\x3A2", L"\x3C2", false},   {L"\x3AA", L"\x3CA", false},
      {L"\x390", L"\x3B0", false},   {L"\x410", L"\x430", true},    {L"\x42F", L"\x44F", true},
      {L"\x430", L"\x450", false},   {L"\x400", L"\x450", true},    {L"\x40F", L"\x45F", true},
      {L"\xFF21", L"\xFF41", true},  {L"\xFF3A", L"\xFF5A", true},  {L"\xFF20", L"\xFF40", false},
      {L"\xFF3B", L"\xFF5B", false}, {L"\x5899", L"\x58B9", false}, {L"ab", L"abc", false}};
  for (const NamePair& pair : pairs) {
    TMenuSystem system;
    system.Append(new TMenuBar);
    system.At(0)->m_strName = pair.upper;
    EXPECT_EQ(system.FindBarIndexNoCase(pair.lower), pair.equal ? 0 : -1) << Utf8(pair.upper);
    system.At(0)->m_strName = pair.lower;
    EXPECT_EQ(system.FindBarIndexNoCase(pair.upper), pair.equal ? 0 : -1) << Utf8(pair.upper);
  }
}

TEST(NamesWithoutCase, NamesOfAnyLengthAreDistinguishedByTheirLastLetter) {
  for (size_t length : {1, 2, 3, 4, 7, 8, 9, 15, 16, 17, 31, 32, 33, 64, 199}) {
    const std::string start(length - 1, 'n');
    Compiled compiled;
    Compile("MENU_TITLE=\"t\"***A " + start + "C [a]\n " + start + "b [b]\n " + start + "A [c]\n " +
                start + "d [d]\n***SWITCH***RESOURCE " + start + "a=\"\",\"\" " + start +
                "B=\"\",\"\" " + start + "c=\"\",\"\" " + start + "C=\"\",\"\"",
            compiled);
    ASSERT_EQ(compiled.result, 0) << length;
    const TMenuBar& bar = *compiled.system.At(0);
    EXPECT_EQ(bar.At(0)->m_nIconIndex, 2) << length;  // the first of two
    EXPECT_EQ(bar.At(1)->m_nIconIndex, 1) << length;
    EXPECT_EQ(bar.At(2)->m_nIconIndex, 0) << length;
    EXPECT_EQ(bar.At(3)->m_nIconIndex, -1) << length;
  }
}

// ---- files that end early

// Each element is one token, or several that must stay together.
const std::vector<std::string> kTokens = {
    "MENU_TITLE", "=",   "\"t\"",  "***", "A",    "K",    "=",      "0",   ",",
    "\"X\"",      ",",   "62",     ",",   "1",    " I",   "[a]x\n", "***", "B",
    "[b]\n",      "***", "SWITCH", "**",  "S",    " GET", "=",      "g",   " SET",
    "=",          "s ",  "0",      "=",   "I",    ",",    "\"l\"",  "***", "RESOURCE",
    " I",         "=",   "\"p\"",  ",",   "\"q\""};

std::string Joined(const std::vector<std::string>& tokens) {
  std::string text;
  for (const std::string& token : tokens) text += token + " ";
  return text;
}

TEST(MenuParserCorners, AnIncompleteFileIsOneSyntaxErrorAndAnEmptySystem) {
  for (size_t count = 0; count < kTokens.size(); ++count) {
    Compiled compiled;
    Compile(Joined({kTokens.begin(), kTokens.begin() + static_cast<int>(count)}), compiled);
    if (kTokens[count - (count ? 1 : 0)] == "RESOURCE") {
      EXPECT_EQ(compiled.result, 0) << count;
      continue;
    }
    EXPECT_EQ(compiled.result, 1) << count;
    ASSERT_EQ(compiled.messages.all.size(), 1u) << count;
    EXPECT_NE(compiled.messages.all[0].find(": syntax error"), std::string::npos);
    EXPECT_EQ(compiled.Tree(), "title \"\"\n") << count;
  }
}

// A keyword that no rule uses, in place of each token.
TEST(MenuParserCorners, PopInPlaceOfAnyTokenIsASyntaxError) {
  for (size_t at = 0; at < kTokens.size(); ++at) {
    std::vector<std::string> tokens = kTokens;
    tokens[at] = "POP ";
    Compiled compiled;
    Compile(Joined(tokens), compiled);
    EXPECT_EQ(compiled.result, 1) << at;
    EXPECT_EQ(compiled.messages.all.size(), 1u) << at;
    EXPECT_EQ(compiled.Tree(), "title \"\"\n") << at;
  }
}

TEST(MenuParserCorners, ASecondResourceSectionIsASyntaxError) {
  Compiled compiled;
  Compile(Joined(kTokens) + "*** RESOURCE", compiled);
  EXPECT_EQ(compiled.result, 1);
}

TEST(MenuParserCorners, TheScannersOwnErrorTokensAreSyntaxErrorsToo) {
  for (const char* source : {"MENU_TITLE = \"open", "MENU_TITLE=\"t\"***A [open"}) {
    Compiled compiled;
    Compile(source, compiled);
    EXPECT_EQ(compiled.result, 1);
    ASSERT_EQ(compiled.messages.all.size(), 2u);
    EXPECT_EQ(compiled.messages.all[1], "1: syntax error");
  }
}

// ---- lines in ASCII and lines with other characters

std::string CommandOf(const std::string& text) {
  Compiled compiled;
  Compile("MENU_TITLE=\"t\"***A[label]" + text + "\n***SWITCH***RESOURCE", compiled);
  EXPECT_EQ(compiled.result, 0) << text;
  return Utf8(compiled.system.At(0)->At(0)->m_strCommand);
}

TEST(MenuLineCorners, ACommandIsExpandedAlikeWithAndWithoutOtherCharacters) {
  const std::string cases[][2] = {{"x;y;", "x\ny\n"},
                                  {"x;y", "x\ny\n"},
                                  {"\"a;b\";c", "\"a;b\"\nc\n"},
                                  {"^\"a;b\";c", "a;b\"\nc\n"},
                                  {"^\"a;b^\";c", "a;b\nc\n"},
                                  {"^C^ca",
                                   "\x1b\x1b"
                                   "a\n"},
                                  {"^^Ca", "Ca\n"},
                                  {"^Pa^;b^", "ab\n"},
                                  {"a;; \t ", "a\n\n"},
                                  {"a^ ; b", "a\n b\n"}};
  for (const auto& [text, expanded] : cases) {
    EXPECT_EQ(CommandOf(text), expanded) << text;
    EXPECT_EQ(CommandOf("\xC7\xBD" + text), "墙" + expanded) << text;
    EXPECT_EQ(CommandOf("\xC7\xBD;" + text), "墙\n" + expanded) << text;
  }
}

TEST(MenuLineCorners, OneBlankAfterALongEnoughLabelIsTrimmed) {
  const std::string cases[][2] = {{"abcd ", "abcd"}, {" abcd", "abcd"},   {"ab ", "ab"},
                                  {"a ", "a "},      {"ab  ", "ab"},      {"abcd\t", "abcd\t"},
                                  {" ab ", "ab"},    {"--  x ", "--  x"}, {"    ", ""}};
  for (const auto& [label, trimmed] : cases) {
    Compiled compiled;
    Compile("MENU_TITLE=\"t\"***A[" + label + "]\n***SWITCH***RESOURCE", compiled);
    ASSERT_EQ(compiled.result, 0);
    EXPECT_EQ(Utf8(compiled.system.At(0)->At(0)->m_strLabel), trimmed) << label;
  }
}

// ---- the scanner

TEST(MenuScannerCorners, ASlashThatOpensNoCommentIsSkipped) {
  EXPECT_EQ(DumpTokens("/"), "1 END\n");
  EXPECT_EQ(DumpTokens("/ a"), "1 IDENTIFIER a\n1 END\n");
  EXPECT_EQ(DumpTokens("/a/"), "1 IDENTIFIER a\n1 END\n");
}

TEST(MenuScannerCorners, SkippedBytesBeyondTheEchoBufferAreWrittenInOrder) {
  std::string source;
  for (int i = 0; i < 10000; ++i) source += "?;:!"[i % 4];
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
  ASSERT_TRUE(file);
  CollectedMessages messages;
  {
    SourceEcho echo(file.get());
    MenuScanner scanner(source, messages, &echo);
    MenuToken token;
    EXPECT_EQ(scanner.Next(token), QMN_END);
  }
  std::rewind(file.get());
  std::string echoed(source.size() + 1, '\0');
  echoed.resize(std::fread(echoed.data(), 1, echoed.size(), file.get()));
  EXPECT_TRUE(echoed == source);
}

// ---- recent commands and the menu in force

struct NoSources : RecentSources {
  bool IsRunMode() override { return false; }
  TMenuBar* ScreenRoot() override { return nullptr; }
  TMenuItem* FindMenuLine(const wchar_t*) override { return nullptr; }
};

TEST(RecentListCorners, WithoutScreenMenuAndSystemTheCommandIsItsOwnLabel) {
  NoSources none;
  TMenuStack recent;
  recent.SetSources(&none);
  recent.AddRecent(L"x");
  ASSERT_EQ(recent.Length(), 1);
  EXPECT_TRUE(recent.At(0)->m_strLabel == L"x");
}

struct LongPaths : MenuUsers, MenuFiles, MenuPrinter {
  TMenuSystem* CurrentSystem() override { return nullptr; }
  void AttachScreenBar(TMenuSystem&) override {}
  void AttachToolBar(TMenuSystem&) override {}
  bool FindFile(const wchar_t*, wchar_t* out) override {
    const std::wstring path(kPathUnits - 1, L'p');
    path.copy(out, path.size());
    out[path.size()] = 0;
    return true;
  }
  bool ReadMenuSetting(wchar_t*) override { return false; }
  int MenuType() override { return 0; }
  void TempFolder(wchar_t* out) override { out[0] = 0; }
  void Print(const wchar_t*) override {}
};

TEST(MenuLoadingCorners, APathOfTheGreatestLengthIsReturnedWhole) {
  LongPaths shell;
  CollectedBoxes boxes;
  wchar_t out[MenuLoading::kPathUnits];
  EXPECT_TRUE(MenuLoading(shell, shell, shell, boxes).FindMenuBase(out));
  EXPECT_EQ(std::wstring(out), std::wstring(MenuLoading::kPathUnits - 1, L'p'));
}

}  // namespace
