#include "kernel/twcstring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <numeric>
#include <vector>

#include "kernel/packed_memory.h"
#include "kernel/tsplitpath.h"

TEST(TWCString, AnEmptyOneReadsAsEmptyTextWithoutStorage) {
  const TWCString plain, promised(256), fromNull(static_cast<const wchar_t*>(nullptr));
  EXPECT_STREQ(plain, L"");
  EXPECT_STREQ(promised, L"");
  EXPECT_STREQ(fromNull, L"");
  EXPECT_TRUE(promised.IsEmpty());
  EXPECT_EQ(promised[0], 0);
}

TEST(TWCString, KeepsWhatItIsGivenThroughCopyAndMove) {
  TWCString a(L"绘制墙体");
  TWCString b(a), c;
  c = b;
  TWCString d(std::move(b));
  EXPECT_STREQ(a, L"绘制墙体");
  EXPECT_STREQ(c, L"绘制墙体");
  EXPECT_STREQ(d, L"绘制墙体");
  EXPECT_EQ(d.Length(), 4);
  c = L"x";
  EXPECT_STREQ(c, L"x");
  EXPECT_STREQ(d, L"绘制墙体");
}

TEST(TWCString, GrowsByUnitsAndByTexts) {
  TWCString text;
  std::wstring expected;
  for (int i = 0; i < 1000; ++i) {
    text += static_cast<wchar_t>(L'a' + i % 26);
    expected += static_cast<wchar_t>(L'a' + i % 26);
    if (i % 100 == 0) {
      text += L"--";
      expected += L"--";
    }
  }
  EXPECT_EQ(expected, text.c_str());
  EXPECT_EQ(text.Length(), static_cast<int>(expected.size()));
}

TEST(TWCString, TakesPartsOfItself) {
  TWCString text(L"abcdef");
  text = text.c_str() + 2;
  EXPECT_STREQ(text, L"cdef");
  text += text;
  EXPECT_STREQ(text, L"cdefcdef");
  text.Append(text.c_str() + 6, 2);
  EXPECT_STREQ(text, L"cdefcdefef");
  TWCString grown(L"ab");
  for (int i = 0; i < 5; ++i) grown.Append(grown.c_str(), grown.Length());
  EXPECT_EQ(grown.Length(), 64);
}

TEST(TWCString, AssignTakesExactlyTheCountZerosAmongThem) {
  TWCString text;
  text.Assign(L"a\0b", 3);
  EXPECT_EQ(text.Length(), 3);
  EXPECT_EQ(text[2], L'b');
  text.Assign(L"xyz", -1);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(TWCString, TruncateCutsAndNeverLengthens) {
  TWCString text(L"abcdef");
  text.Truncate(10);
  EXPECT_STREQ(text, L"abcdef");
  text.Truncate(2);
  EXPECT_STREQ(text, L"ab");
  text.Truncate(-3);
  EXPECT_STREQ(text, L"");
  text += L'z';
  EXPECT_STREQ(text, L"z");
}

TEST(TWCString, EqualityIsExactAndTheOtherOneFoldsCase) {
  const TWCString text(L"Screen");
  EXPECT_TRUE(text == L"Screen");
  EXPECT_FALSE(text == L"SCREEN");
  EXPECT_TRUE(text != L"Scree");
  EXPECT_TRUE(text == TWCString(L"Screen"));
  EXPECT_TRUE(text.EqualsNoCase(L"sCREEN"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREENs"));
  EXPECT_FALSE(text.EqualsNoCase(L"sCREE"));
  EXPECT_TRUE(TWCString().EqualsNoCase(nullptr));
}

// ---- kept texts

TEST(KeptText, ReadsLikeAnyOtherAndIsSharedByCopies) {
  TWCString text;
  text.Keep(L"a\0b", 3);
  EXPECT_EQ(text.Length(), 3);
  EXPECT_EQ(std::wstring(text.c_str(), 4), std::wstring(L"a\0b", 4));
  const TWCString copy(text);
  EXPECT_EQ(copy.c_str(), text.c_str());
  TWCString assigned(L"something longer than that");
  assigned = text;
  EXPECT_EQ(assigned.c_str(), text.c_str());
}

TEST(KeptText, EveryChangeLeavesTheCopiesAlone) {
  TWCString kept;
  kept.Keep(L"wall", 4);
  const auto changed = [&kept](auto change) {
    TWCString copy(kept);
    change(copy);
    EXPECT_STREQ(kept, L"wall");
    return std::wstring(copy.c_str(), static_cast<size_t>(copy.Length()));
  };
  EXPECT_EQ(changed([](TWCString& text) { text[0] = L'b'; }), L"ball");
  EXPECT_EQ(changed([](TWCString& text) { text += L's'; }), L"walls");
  EXPECT_EQ(changed([](TWCString& text) { text += text; }), L"wallwall");
  EXPECT_EQ(changed([](TWCString& text) { text.Truncate(2); }), L"wa");
  EXPECT_EQ(changed([](TWCString& text) { text.Empty(); }), L"");
  EXPECT_EQ(changed([](TWCString& text) { text = L"x"; }), L"x");
  EXPECT_EQ(changed([](TWCString& text) { text.Assign(text.c_str() + 1, 2); }), L"al");
  EXPECT_EQ(changed([](TWCString& text) { text.Keep(text.c_str() + 2, 2); }), L"ll");
  EXPECT_EQ(changed([](TWCString& text) { text.Keep(L"", 0); }), L"");
  EXPECT_EQ(changed([](TWCString& text) { text.Reserve(100); }), L"wall");
}

TEST(KeptText, LongOnesAreKeptOnTheHeap) {
  const std::wstring longest(5000, L'x');
  const size_t before = PackedMemory::LiveBlocks();
  TWCString text;
  text.Keep(longest.c_str(), static_cast<int>(longest.size()));
  EXPECT_EQ(PackedMemory::LiveBlocks(), before);
  EXPECT_EQ(text.c_str(), longest);
  TWCString room;
  room.KeepBy(5000, [](wchar_t* out) { std::fill_n(out, 5000 + TWCString::kOverrun, L'x'); });
  EXPECT_TRUE(room == text);
}

// What is written behind a text is overwritten by the next one, never the other way round.
TEST(KeptText, LosesItsFirstUnitsWithoutMoving) {
  const std::size_t live = PackedMemory::LiveBlocks();
  {
    TWCString text, neighbour, whole, assigned(L"<-wall");
    text.Keep(L"<-<-wall", 8);
    neighbour.Keep(L"door", 4);
    const wchar_t* rest = text.c_str() + 4;
    text.CutFront(4);
    EXPECT_EQ(text.c_str(), rest);
    EXPECT_EQ(text.Length(), 4);
    EXPECT_STREQ(text.c_str(), L"wall");
    EXPECT_STREQ(neighbour.c_str(), L"door");
    whole.Keep(L"->", 2);
    whole.CutFront(2);
    EXPECT_TRUE(whole.IsEmpty());
    EXPECT_STREQ(whole.c_str(), L"");
    assigned.CutFront(2);
    EXPECT_STREQ(assigned.c_str(), L"wall");
    const TWCString copy(text);
    text += L"s";
    EXPECT_STREQ(copy.c_str(), L"wall");
    EXPECT_STREQ(text.c_str(), L"walls");
  }
  EXPECT_EQ(PackedMemory::LiveBlocks(), live);
}

TEST(KeptText, QuickCopiesOfEachLengthKeepTheirNeighbours) {
  wchar_t source[300 + TWCString::kOverrun];
  std::iota(std::begin(source), std::end(source), L'A');
  std::vector<TWCString> texts(301);
  for (int i = 0; i <= 300; ++i) texts[static_cast<size_t>(i)].KeepQuickly(source, i);
  for (int i = 0; i <= 300; ++i)
    EXPECT_EQ(texts[static_cast<size_t>(i)].c_str(), std::wstring(source, static_cast<size_t>(i)));
  for (int i = 0; i <= 300; ++i) texts[static_cast<size_t>(i)].KeepQuickly(source + i, 300 - i);
  for (int i = 0; i <= 300; ++i)
    EXPECT_EQ(texts[static_cast<size_t>(i)].c_str(),
              std::wstring(source + i, static_cast<size_t>(300 - i)));
}

TEST(KeptText, ASharedTextOutlivesItsGiver) {
  const size_t before = PackedMemory::LiveBlocks();
  {
    std::vector<TWCString> copies(100);
    {
      TSharedText shared(L"icon", 4);
      TSharedText moved(std::move(shared));
      for (TWCString& copy : copies) moved.CopyTo(copy);
      EXPECT_EQ(copies[7].c_str(), moved.Text().c_str());
    }
    EXPECT_STREQ(copies[99], L"icon");
    EXPECT_EQ(PackedMemory::LiveBlocks(), before + 100);
  }
  EXPECT_EQ(PackedMemory::LiveBlocks(), before);
  TSharedText nothing(L"", 0);
  TWCString text(L"x");
  nothing.CopyTo(text);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(PackedMemory, BlocksOfManyChunksGoInAnyOrder) {
  const size_t before = PackedMemory::LiveBlocks();
  std::vector<std::pair<unsigned char*, size_t>> blocks;
  std::mt19937 random(5);
  for (int i = 0; i < 20000; ++i) {
    const size_t bytes = 1 + random() % (i % 100 ? 60 : PackedMemory::kLargest);
    const bool record = i % 3 == 0;
    void* block = record ? PackedMemory::TakeRecord(bytes) : PackedMemory::Take(bytes);
    ASSERT_EQ(reinterpret_cast<std::uintptr_t>(block) % (record ? 8 : 4), 0u);
    std::memset(block, i & 0xFF, bytes);
    blocks.emplace_back(static_cast<unsigned char*>(block), bytes);
  }
  EXPECT_EQ(PackedMemory::LiveBlocks(), before + blocks.size());
  for (size_t i = 0; i < blocks.size(); ++i)
    for (size_t at = 0; at < blocks[i].second; ++at) ASSERT_EQ(blocks[i].first[at], i & 0xFF);
  std::shuffle(blocks.begin(), blocks.end(), random);
  for (const auto& block : blocks) PackedMemory::Drop(block.first);
  EXPECT_EQ(PackedMemory::LiveBlocks(), before);
}

TEST(NarrowText, GoesThroughTheAnsiCodePageAndBack) {
  const char narrow[] = "\xC7\xBD\xCC\xE5";  // 墙体 in code page 936
  EXPECT_STREQ(TUString(narrow), L"墙体");
  EXPECT_STREQ(TAString(L"墙体"), narrow);
  EXPECT_STREQ(TUString(nullptr), L"");
  EXPECT_EQ(TUString("abc", 2).Length(), 2);
}

TEST(TWCStringList, KeepsCopiesInOrder) {
  TWCStringList list;
  {
    TWCString text(L"一");
    list.Add(text);
    list.Add(L"二");
  }
  ASSERT_EQ(list.Length(), 2);
  EXPECT_STREQ(list[0], L"一");
  EXPECT_STREQ(list[1], L"二");
}

TEST(SplitPath, GivesTheFourPieces) {
  const TSplitpathOperator parts(L"C:\\菜单\\sub.dir\\qvx.old.qmn");
  EXPECT_STREQ(parts.Drive(), L"C:");
  EXPECT_STREQ(parts.Folder(), L"\\菜单\\sub.dir\\");
  EXPECT_STREQ(parts.Name(), L"qvx.old");
  EXPECT_STREQ(parts.Extension(), L".qmn");
  EXPECT_STREQ(parts.FileName(), L"qvx.old.qmn");
  EXPECT_STREQ(parts.Base(), L"C:\\菜单\\sub.dir\\qvx.old");
}

TEST(SplitPath, MissingPiecesAreEmpty) {
  const TSplitpathOperator bare(L"qvx");
  EXPECT_STREQ(bare.Drive(), L"");
  EXPECT_STREQ(bare.Folder(), L"");
  EXPECT_STREQ(bare.Name(), L"qvx");
  EXPECT_STREQ(bare.Extension(), L"");
  const TSplitpathOperator slashes(L"/home/a.b/qvx");
  EXPECT_STREQ(slashes.Folder(), L"/home/a.b/");
  EXPECT_STREQ(slashes.Base(), L"/home/a.b/qvx");
  EXPECT_STREQ(TSplitpathOperator(nullptr).FileName(), L"");
}
