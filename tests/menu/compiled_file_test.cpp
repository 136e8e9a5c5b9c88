// The compiled file: all its bytes, reading it back, messages, and saves that fail.
#include <gtest/gtest.h>

#include "tests/menu/menu_testing.h"

namespace {

using namespace std::string_literals;

// Builds the bytes of a compiled file by hand.
struct Bytes {
  Bytes& U16(unsigned v) { return Raw(v, 2); }
  Bytes& U32(unsigned v) { return Raw(v, 4); }
  Bytes& Str(const std::string& ascii) {
    text += "\xFF\xFE\xFF"s;
    text += static_cast<char>(ascii.size());
    for (char c : ascii) text += {c, '\0'};
    return *this;
  }
  Bytes& Narrow(const std::string& narrow) {
    text += static_cast<char>(narrow.size());
    text += narrow;
    return *this;
  }
  Bytes& Raw(unsigned v, int count) {
    for (int i = 0; i < count; ++i) text += static_cast<char>(v >> 8 * i);
    return *this;
  }
  Bytes& Add(const std::string& bytes) {
    text += bytes;
    return *this;
  }
  std::string text;
};

const char kMagic[] = "Quivera Compiled Menu File";

Bytes Head(const std::string& title = "") {
  Bytes bytes;
  bytes.Str(kMagic).U32(1).U32(0).U32(0).Str(title);
  return bytes;
}

// The fields after label, command and sub-menu.
Bytes& Tail(Bytes& bytes, unsigned switchIndex = 0xFFFFFFFF) {
  return bytes.U32(switchIndex).U32(0).Str("").Str("").Str("").U32(0xFFFFFFFF);
}

TEST(CompiledFile, AnEmptySystemIsMagicVersionTwoNumbersTitleAndThreeCounts) {
  TMenuSystem system;
  EXPECT_EQ(SaveBytes(system), Head().U32(0).U32(0).U32(0).text);
}

TEST(CompiledFile, EveryFieldIsAtItsOffset) {
  TMenuSystem system;
  system.m_nReserved1 = 0x01020304;
  system.m_nReserved2 = 0xA0B0C0D0;
  system.m_strTitle = L"T";
  system.m_resources.Append(new TMenuResItem(L"N", L"I", L"J"));
  auto* owner = new TMenuSwitchItem;
  system.m_switches.Append(owner);
  owner->m_strName = L"S";
  owner->m_strGetFn = L"G";
  owner->m_strSetFn = L"H";
  owner->m_states.Append(new TSwitchStateItem);
  owner->m_states.At(0)->m_nValue = -2;
  owner->m_states.At(0)->m_strIconName = L"K";
  owner->m_states.At(0)->m_strLabel = L"L";
  auto* bar = new TMenuBar;
  system.Append(bar);
  bar->m_strName = L"B";
  bar->m_strKind = L"C";
  bar->m_objectMask.AppendString(0, L"X");
  bar->m_objectMask.AppendShort(62, -1);
  bar->m_objectMask.AppendReal(40, 1.0);
  bar->m_objectMask.AppendLong(90, 7);
  auto* item = new TMenuItem(L"l", L"c", L"i");
  bar->Append(item);
  item->m_pSwitch = owner;
  item->m_nFlags = 3;
  item->m_strCheckFn = L"f";
  item->m_strGrayFn = L"g";
  item->m_nIconIndex = 0;
  item->m_nCommandId = 99;
  item->m_pSubMenu = new TMenuBar;

  Bytes e;
  e.Str(kMagic).U32(1).U32(0x01020304).U32(0xA0B0C0D0).Str("T");
  e.U32(1).Str("N").Str("I").Str("J");
  e.U32(1).Str("S").Str("G").Str("H").U32(1).U32(0xFFFFFFFE).Str("K").Str("L").U32(0xFFFFFFFF);
  e.U32(1).Str("B").Str("C").U32(4);
  e.U16(0).Str("X").U16(62).U32(0xFFFFFFFF).U16(40).Add("\0\0\0\0\0\0\xF0\x3F"s).U16(90).U32(7);
  e.U32(1).Str("l").Str("c").U32(1).Str("").Str("").U32(0).U32(0);
  e.U32(0).U32(3).Str("f").Str("g").Str("i").U32(0);
  EXPECT_EQ(SaveBytes(system), e.text);

  TMenuSystem back;
  EXPECT_EQ(LoadBytes(back, e.text), "");
  EXPECT_EQ(DumpTree(back), DumpTree(system));
  EXPECT_EQ(SaveBytes(back), e.text);
  EXPECT_EQ(back.At(0)->m_bOwned, 1);
  EXPECT_EQ(back.At(0)->At(0)->m_nCommandId, 0);
}

TEST(CompiledFile, StringsHaveThreeFormsOfLength) {
  for (int length : {0, 1, 254, 255, 256, 0xFFFD, 0xFFFE, 0xFFFF, 70000}) {
    TMenuSystem system;
    const std::wstring title(static_cast<size_t>(length), L'墙');
    system.m_strTitle = title.c_str();
    const std::string bytes = SaveBytes(system);
    const size_t at = Head().text.size() - 1;
    const std::string head = bytes.substr(at, 8);
    if (length < 255) {
      EXPECT_EQ(head[0], static_cast<char>(length));
    } else if (length < 0xFFFE) {
      EXPECT_EQ(head.substr(0, 3), Bytes().Add("\xFF").U16(static_cast<unsigned>(length)).text);
    } else {
      EXPECT_EQ(head.substr(0, 7),
                Bytes().Add("\xFF\xFF\xFF").U32(static_cast<unsigned>(length)).text);
    }
    TMenuSystem back;
    EXPECT_EQ(LoadBytes(back, bytes), "");
    EXPECT_TRUE(back.m_strTitle == system.m_strTitle);
  }
}

TEST(CompiledFile, StringsOfEachLengthAreReadBackWithTheirNeighbours) {
  TMenuSystem system;
  const auto text = [](int length) {
    std::wstring text(static_cast<size_t>(length), L' ');
    for (int i = 0; i < length; ++i)
      text[static_cast<size_t>(i)] = static_cast<wchar_t>(0x4E00 + 7 * length + i);
    return text;
  };
  for (int i = 0; i < 300; ++i)
    system.m_resources.Append(
        new TMenuResItem(text(i).c_str(), text(299 - i).c_str(), text(i / 7).c_str()));
  TMenuSystem back;
  ASSERT_EQ(LoadBytes(back, SaveBytes(system)), "");
  ASSERT_EQ(back.m_resources.Length(), 300);
  for (int i = 0; i < 300; ++i) {
    EXPECT_EQ(back.m_resources.At(i)->m_strName, text(i).c_str());
    EXPECT_EQ(back.m_resources.At(i)->m_strImage, text(299 - i).c_str());
    EXPECT_EQ(back.m_resources.At(i)->m_strImage2, text(i / 7).c_str());
  }
}

TEST(CompiledFile, StringsWithoutTheMarkerAreInTheCodePage) {
  const std::string longTitle(300, 'x');
  TMenuSystem system;
  Bytes bytes;
  bytes.Narrow(kMagic).U32(1).U32(0).U32(0).Narrow("\xC7\xBD").U32(0).U32(0).U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_TRUE(system.m_strTitle == L"墙");
  bytes = Bytes();
  bytes.Narrow(kMagic).U32(1).U32(0).U32(0).Add("\xFF").U16(300).Add(longTitle);
  bytes.U32(0).U32(0).U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_EQ(system.m_strTitle.Length(), 300);
  bytes = Bytes();
  bytes.Narrow(kMagic).U32(1).U32(0).U32(0).Add("\xFF\xFF\xFF").U32(3).Add("abc");
  bytes.U32(0).U32(0).U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_TRUE(system.m_strTitle == L"abc");
}

TEST(CompiledFile, MagicInAnyCaseAndAnyVersionAreAccepted) {
  TMenuSystem system;
  Bytes bytes;
  bytes.Str("qUIVERA compiled menu FILE").U32(77).U32(5).U32(6).Str("t").U32(0).U32(0).U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_EQ(system.m_nReserved1, 5u);
  EXPECT_EQ(system.m_nReserved2, 6u);
}

TEST(CompiledFile, AnotherMagicIsAFileExceptionWithCauseZero) {
  TMenuSystem system;
  EXPECT_EQ(LoadBytes(system, Bytes().Str("Quivera Compiled Menu Files").text),
            "CFileException 0 -1");
}

TEST(CompiledFile, NestedSubMenusAreReadBack) {
  Compiled compiled;
  Compile("MENU_TITLE=\"t\"***A[->a]\n[->b]\n[c]x;\n[<-<-d]\n[e]\n***SWITCH***RESOURCE", compiled);
  TMenuSystem back;
  EXPECT_EQ(LoadBytes(back, SaveBytes(compiled.system)), "");
  EXPECT_EQ(DumpTree(back), compiled.Tree());
}

TEST(CompiledFile, LoadingReplacesTheListsAndKeepsTheRecentOnes) {
  TMenuSystem system;
  system.Append(new TMenuBar);
  system.m_recent.AddRecent(L"x");
  EXPECT_EQ(LoadBytes(system, Head("new").U32(0).U32(0).U32(0).text), "");
  EXPECT_EQ(system.Length(), 0);
  EXPECT_EQ(system.m_recent.Length(), 1);
}

TEST(CompiledFile, ShortValuesAreTruncatedTo16BitsOnReading) {
  TMenuSystem system;
  Bytes bytes = Head();
  bytes.U32(0).U32(0).U32(1).Str("B").Str("").U32(1).U16(62).U32(0x12345).U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_EQ(system.At(0)->m_objectMask.Head()->resval.rint, 0x2345);
}

TEST(CompiledFile, AGroupOfNoKindHasNoValue) {
  TMenuSystem system;
  Bytes bytes = Head();
  bytes.U32(0).U32(0).U32(1).Str("B").Str("").U32(2).U16(5000).U16(8).Str("x").U32(0);
  EXPECT_EQ(LoadBytes(system, bytes.text), "");
  EXPECT_EQ(DumpTree(system), "title \"\"\nbar B 5000=- 8=\"x\"\n");
  EXPECT_EQ(SaveBytes(system), bytes.text);
}

TEST(CompiledFile, ASwitchIndexPastTheTableIsAnErrorOnReading) {
  TMenuSystem system;
  Bytes bytes = Head();
  bytes.U32(0).U32(0).U32(1).Str("B").Str("").U32(0).U32(1).Str("l").Str("").U32(0);
  EXPECT_EQ(LoadBytes(system, Bytes(Tail(bytes, 0)).text), "CArchiveException");
  EXPECT_EQ(system.At(0)->At(0)->m_pSwitch, nullptr);
}

TEST(CompiledFile, ANegativeSwitchIndexMeansNone) {
  TMenuSystem system;
  Bytes bytes = Head();
  bytes.U32(0).U32(0).U32(1).Str("B").Str("").U32(0).U32(1).Str("l").Str("").U32(0);
  EXPECT_EQ(LoadBytes(system, Bytes(Tail(bytes, 0x80000000)).text), "");
  EXPECT_EQ(system.At(0)->At(0)->m_pSwitch, nullptr);
}

TEST(CompiledFile, EveryNonZeroSubMenuFlagMeansASubMenu) {
  TMenuSystem system;
  Bytes bytes = Head();
  bytes.U32(0).U32(0).U32(1).Str("B").Str("").U32(0).U32(1).Str("l").Str("").U32(7);
  bytes.Str("").Str("").U32(0).U32(0);
  EXPECT_EQ(LoadBytes(system, Bytes(Tail(bytes)).text), "");
  EXPECT_NE(system.At(0)->At(0)->m_pSubMenu, nullptr);
}

// Sizes close to that of the archive's buffer, which is also the writer's.
TEST(CompiledFile, FilesAboutAsLongAsTheArchiveBufferAreReadBack) {
  TMenuSystem system;
  for (int i = 0; i < 22700; ++i) system.m_resources.Append(new TMenuResItem(L"a", L"b", L"c"));
  const size_t least = SaveBytes(system).size();
  ASSERT_LT(least, 409600u - 600u);
  for (size_t wanted = 409600 - 6; wanted <= 409600 + 24; wanted += 2) {
    const size_t units =
        (wanted - least) / 2 - 1;  // the length field of a long title has two bytes more
    system.m_strTitle = std::wstring(units, L't').c_str();
    const std::string bytes = SaveBytes(system);
    ASSERT_EQ(bytes.size(), wanted);
    TMenuSystem back;
    EXPECT_EQ(LoadBytes(back, bytes), "") << wanted;
    EXPECT_EQ(SaveBytes(back), bytes);
  }
}

// The reader seeks back after reading ahead.
TEST(CompiledFile, WhatFollowsASystemInItsArchiveCanStillBeRead) {
  Compiled compiled;
  Compile("MENU_TITLE=\"t\"***A[a]\n***SWITCH***RESOURCE R=\"i\",\"j\"", compiled);
  CMemFile file;
  CArchive out(&file, CArchive::store);
  compiled.system.Serialize(out);
  out << 4711;
  out.Close();
  file.SeekToBegin();
  CArchive in(&file, CArchive::load);
  TMenuSystem back;
  back.Serialize(in);
  int next = 0;
  in >> next;
  EXPECT_EQ(next, 4711);
}

TEST(CompiledFile, ElementsReadBeforeAnExceptionAreKept) {
  Compiled compiled;
  Compile("MENU_TITLE=\"t\"***A[a]\n[b]\n***B[c]\n***SWITCH***RESOURCE R=\"i\",\"j\"", compiled);
  const std::string bytes = SaveBytes(compiled.system);
  TMenuSystem back;
  EXPECT_EQ(LoadBytes(back, bytes.substr(0, bytes.size() - 40)), "CArchiveException");
  EXPECT_TRUE(back.m_strTitle == L"t");
  EXPECT_EQ(back.m_resources.Length(), 1);
  EXPECT_EQ(back.At(0)->Length(), 2);
}

TEST(CompiledFile, ASingleLineTakesItsSwitchFromTheCurrentSystem) {
  TMenuSystem system;
  system.m_switches.Append(new TMenuSwitchItem);
  system.m_switches.Append(new TMenuSwitchItem);
  TMenuSystem::SetCurrent(&system);
  TMenuItem item(L"l", L"c"), back;
  item.m_pSwitch = system.m_switches.At(1);
  back.m_pSubMenu = new TMenuBar;
  CMemFile file;
  CArchive out(&file, CArchive::store);
  item.Serialize(out);
  out.Close();
  file.SeekToBegin();
  CArchive in(&file, CArchive::load);
  back.Serialize(in);
  TMenuSystem::SetCurrent(nullptr);
  EXPECT_EQ(back.m_pSwitch, item.m_pSwitch);
  EXPECT_EQ(back.m_pSubMenu, nullptr);
}

TEST(CompiledFile, ReadingASingleBlockReplacesItsMask) {
  TMenuBar plain, old;
  old.m_objectMask.AppendShort(62, 1);
  CMemFile file;
  CArchive out(&file, CArchive::store);
  plain.Serialize(out);
  out.Close();
  file.SeekToBegin();
  CArchive in(&file, CArchive::load);
  old.Serialize(in);
  EXPECT_EQ(old.m_objectMask.Head(), nullptr);
}

// ---- files

struct CompiledFileOnDisk : testing::Test {
  CompiledFileOnDisk() { DeleteFileAt(path); }
  ~CompiledFileOnDisk() override {
    DeleteFileAt(path);
    DeleteFileAt(path + L".new");
  }
  const std::wstring path = TempPath(L"compiled.qmc");
  TMenuSystem system;
  CollectedBoxes boxes;
};

TEST_F(CompiledFileOnDisk, SavesAndLoads) {
  system.m_strTitle = L"墙";
  system.SaveCompiled(path.c_str(), boxes);
  EXPECT_EQ(ReadFile(path), SaveBytes(system));
  TMenuSystem back;
  back.LoadCompiled(path.c_str(), boxes);
  EXPECT_TRUE(back.m_strTitle == L"墙");
  EXPECT_TRUE(boxes.all.empty());
}

TEST_F(CompiledFileOnDisk, ASaveReplacesTheOldFileAndLeavesNothingBesideIt) {
  WriteFile(path, std::string(100000, 'x'));
  system.SaveCompiled(path.c_str(), boxes);
  EXPECT_EQ(ReadFile(path), SaveBytes(system));
  EXPECT_EQ(ReadFile(path + L".new"), "<missing>");
}

TEST_F(CompiledFileOnDisk, AFileThatCannotBeCreatedGivesAMessage) {
  const std::wstring bad = TempPath(L"missing") + L"/x.qmc";
  system.SaveCompiled(bad.c_str(), boxes);
  EXPECT_EQ(boxes.all, std::vector<std::string>{"无法创建文件" + Utf8(bad.c_str())});
}

TEST_F(CompiledFileOnDisk, AFolderWithTheNameOfTheTargetGivesTheSameMessage) {
  const std::wstring folder = TempPath(L"missing/..");
  system.SaveCompiled(folder.c_str(), boxes);
  EXPECT_EQ(boxes.all, std::vector<std::string>{"无法创建文件" + Utf8(folder.c_str())});
}

TEST_F(CompiledFileOnDisk, AFileThatCannotBeReadGivesAMessageAndKeepsTheModel) {
  system.m_strTitle = L"old";
  system.Append(new TMenuBar);
  system.LoadCompiled(path.c_str(), boxes);
  EXPECT_EQ(boxes.all, std::vector<std::string>{"无法读取文件" + Utf8(path.c_str())});
  EXPECT_EQ(system.Length(), 1);
}

TEST_F(CompiledFileOnDisk, EachExceptionHasItsMessage) {
  WriteFile(path, Bytes().Str("Something else").text);
  system.LoadCompiled(path.c_str(), boxes);
  WriteFile(path, Head().text);
  system.LoadCompiled(path.c_str(), boxes);
  WriteFile(path, "");
  system.LoadCompiled(path.c_str(), boxes);
  EXPECT_EQ(boxes.all,
            (std::vector<std::string>{"CFileException", "CArchiveException", "CArchiveException"}));
}

}  // namespace
