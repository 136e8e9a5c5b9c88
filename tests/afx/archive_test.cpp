// CArchive: the exact bytes, and the checks of lengths while loading.
#include <gtest/gtest.h>

#include <functional>
#include <numeric>

#include "afx.h"

namespace {

using Bytes = std::vector<BYTE>;

Bytes Stored(const std::function<void(CArchive&)>& write, int bufferSize = 4096) {
  CMemFile file;
  CArchive archive(&file, CArchive::store, bufferSize);
  write(archive);
  archive.Close();
  return Bytes(file.GetBufferPtr(), file.GetBufferPtr() + file.GetLength());
}

// The cause of the exception that `read` threw, or none.
int Loaded(const Bytes& bytes, const std::function<void(CArchive&)>& read) {
  CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
  CArchive archive(&file, CArchive::load);
  try {
    read(archive);
  } catch (CArchiveException* exception) {
    const int cause = exception->m_cause;
    exception->Delete();
    return cause;
  }
  return CArchiveException::none;
}

CString LoadedText(const Bytes& bytes) {
  CString text = L"(none)";
  EXPECT_EQ(Loaded(bytes, [&](CArchive& archive) { archive >> text; }), CArchiveException::none);
  return text;
}

TEST(Archive, NumbersAreLittleEndian) {
  const Bytes bytes = Stored([](CArchive& archive) {
    archive << BYTE{1} << WORD{0x0203} << 0x04050607 << 0x08090A0Bu << -1LL << 1.0 << 1.0f;
  });
  EXPECT_EQ(bytes, (Bytes{1,    3,    2,    7,    6,    5,    4,    0x0B, 0x0A, 9, 8,
                          0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0,    0, 0,
                          0,    0,    0,    0xF0, 0x3F, 0,    0,    0x80, 0x3F}));
}

TEST(Archive, NumbersAreReadBack) {
  const Bytes bytes = Stored([](CArchive& archive) {
    archive << short{-2} << LONG{-3} << DWORD{4} << true << 'c' << L'墙' << 2.5 << 1.5f << 5ull;
  });
  short s = 0;
  LONG l = 0;
  DWORD d = 0;
  bool b = false;
  char c = 0;
  wchar_t w = 0;
  double real = 0;
  float small = 0;
  ULONGLONG big = 0;
  EXPECT_EQ(Loaded(bytes,
                   [&](CArchive& archive) {
                     archive >> s >> l >> d >> b >> c >> w >> real >> small >> big;
                   }),
            CArchiveException::none);
  EXPECT_EQ(s, -2);
  EXPECT_EQ(l, -3);
  EXPECT_EQ(d, 4u);
  EXPECT_TRUE(b);
  EXPECT_EQ(c, 'c');
  EXPECT_EQ(w, L'墙');
  EXPECT_EQ(real, 2.5);
  EXPECT_EQ(small, 1.5f);
  EXPECT_EQ(big, 5u);
}

TEST(Archive, AStringHasTheMarkerAndSixteenBitUnits) {
  const Bytes bytes = Stored([](CArchive& archive) { archive << CString(L"a墙"); });
  EXPECT_EQ(bytes, (Bytes{0xFF, 0xFE, 0xFF, 2, 'a', 0, 0x99, 0x58}));
}

TEST(Archive, LengthsHaveThreeForms) {
  const auto head = [](int length, std::size_t count) {
    const Bytes all = Stored([&](CArchive& archive) { archive << CString(L'x', length); });
    EXPECT_EQ(all.size(), count + 2 * static_cast<std::size_t>(length));
    EXPECT_EQ(LoadedText(all).GetLength(), length);
    return Bytes(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count));
  };
  EXPECT_EQ(head(0, 4), (Bytes{0xFF, 0xFE, 0xFF, 0}));
  EXPECT_EQ(head(254, 4), (Bytes{0xFF, 0xFE, 0xFF, 254}));
  EXPECT_EQ(head(255, 6), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 255, 0}));
  EXPECT_EQ(head(0xFFFD, 6), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFD, 0xFF}));
  EXPECT_EQ(head(0xFFFE, 10), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0, 0}));
}

TEST(Archive, AStringWithoutTheMarkerIsNarrow) {
  EXPECT_STREQ(LoadedText({3, 'a', 'b', 'c'}), L"abc");
  Bytes medium{0xFF, 0x2C, 0x01};
  medium.resize(3 + 300, 'x');
  EXPECT_EQ(LoadedText(medium).GetLength(), 300);
  Bytes large{0xFF, 0xFF, 0xFF, 0x70, 0x11, 1, 0};
  large.resize(7 + 70000, 'x');
  EXPECT_EQ(LoadedText(large).GetLength(), 70000);
}

TEST(Archive, ANarrowStringIsWrittenWithoutTheMarker) {
  EXPECT_EQ(Stored([](CArchive& archive) { archive << CStringA("ab"); }), (Bytes{2, 'a', 'b'}));
}

TEST(Archive, AWideStringIsReadIntoANarrowOne) {
  CStringA text;
  EXPECT_EQ(Loaded({0xFF, 0xFE, 0xFF, 1, 'a', 0}, [&](CArchive& archive) { archive >> text; }),
            CArchiveException::none);
  EXPECT_STREQ(text, "a");
}

TEST(Archive, EveryPrefixOfAStringEndsTheFile) {
  for (const int length : {3, 300, 0xFFFE}) {
    const Bytes all = Stored([&](CArchive& archive) { archive << CString(L'x', length); });
    for (std::size_t cut = 0; cut < 12; ++cut) {
      const Bytes part(all.begin(),
                       all.begin() + static_cast<std::ptrdiff_t>(std::min(cut, all.size() - 1)));
      CString text;
      EXPECT_EQ(Loaded(part, [&](CArchive& archive) { archive >> text; }),
                CArchiveException::endOfFile);
    }
  }
}

// Regression: a length of 4 billion in a file of ten bytes was allocated before it was checked.
TEST(Archive, ALengthIsCheckedAgainstTheFileBeforeAnyAllocation) {
  CString text = L"kept";
  EXPECT_EQ(Loaded({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
                   [&](CArchive& archive) { archive >> text; }),
            CArchiveException::endOfFile);
  EXPECT_STREQ(text, L"kept");
}

TEST(Archive, ANumberPastTheEndEndsTheFile) {
  int value = 0;
  EXPECT_EQ(Loaded({1, 2, 3}, [&](CArchive& archive) { archive >> value; }),
            CArchiveException::endOfFile);
}

TEST(Archive, ReadReturnsTheBytesThatAreLeft) {
  BYTE buffer[8];
  UINT taken = 0;
  EXPECT_EQ(Loaded({1, 2, 3},
                   [&](CArchive& archive) {
                     EXPECT_EQ(archive.BytesLeft(), 3u);
                     taken = archive.Read(buffer, 8);
                     EXPECT_EQ(archive.BytesLeft(), 0u);
                   }),
            CArchiveException::none);
  EXPECT_EQ(taken, 3u);
}

TEST(Archive, TheBufferSizeDoesNotChangeTheBytes) {
  const auto write = [](CArchive& archive) {
    for (int i = 0; i < 500; ++i) archive << i << CString(L'x', i);
  };
  EXPECT_EQ(Stored(write, 1), Stored(write, 409600));
}

TEST(Archive, UsingTheWrongDirectionThrows) {
  EXPECT_EQ(Loaded({1}, [](CArchive& archive) { archive << 1; }), CArchiveException::readOnly);
  CMemFile file;
  CArchive archive(&file, CArchive::store);
  int value;
  try {
    archive >> value;
    FAIL() << "a storing archive was read";
  } catch (CArchiveException* exception) {
    EXPECT_EQ(exception->m_cause, CArchiveException::writeOnly);
    exception->Delete();
  }
}

TEST(Archive, FlushWhileLoadingMovesTheFileBackOverTheReadAhead) {
  const Bytes bytes{1, 2, 3, 4};
  CMemFile file(bytes.data(), 4);
  CArchive archive(&file, CArchive::load);
  BYTE first = 0;
  archive >> first;
  archive.Flush();
  EXPECT_EQ(file.GetPosition(), 1u);
}

TEST(Archive, TheDestructorWritesTheRest) {
  CMemFile file;
  { CArchive(&file, CArchive::store) << 1; }
  EXPECT_EQ(file.GetLength(), 4u);
}

// Blocks larger than the buffer bypass it, in the order of the calls.
TEST(Archive, LargeAndSmallWritesKeepTheirOrder) {
  Bytes bytes(1000);
  std::iota(bytes.begin(), bytes.end(), BYTE{0});
  CMemFile file;
  CArchive archive(&file, CArchive::store, 128);
  size_t done = 0;
  for (const UINT part : {1u, 300u, 127u, 128u, 256u, 129u, 59u}) {
    archive.Write(bytes.data() + done, part);
    done += part;
  }
  archive.Close();
  ASSERT_EQ(done, bytes.size());
  Bytes written(bytes.size());
  file.SeekToBegin();
  ASSERT_EQ(file.Read(written.data(), 1000), 1000u);
  EXPECT_EQ(written, bytes);
  EXPECT_EQ(file.GetLength(), 1000u);
}

}  // namespace
