// Invalid compiled files: every prefix and every changed byte of a valid one, and sizes beyond the
// end. Runs under the sanitizers; memory must stay in proportion to the file.
#include <gtest/gtest.h>

#include <chrono>

#include "tests/menu/good_file.h"
#include "tests/menu/menu_testing.h"

namespace {

using namespace std::string_literals;

// Reads the bytes, visits all lines, and writes the model again.
void Exercise(const std::string& bytes) {
  TMenuSystem system;
  LoadBytes(system, bytes);
  system.FindItemByCommand(L"none");
  EXPECT_FALSE(SaveBytes(system).empty());
}

TEST(HostileCompiledFile, EveryPrefixEndsInAnArchiveException) {
  const std::string good = GoodFile();
  for (size_t i = 0; i < good.size(); ++i) {
    TMenuSystem system;
    EXPECT_EQ(LoadBytes(system, good.substr(0, i)), "CArchiveException") << i;
    SaveBytes(system);
  }
}

TEST(HostileCompiledFile, NoChangedByteCrashesTheReader) {
  const std::string good = GoodFile();
  for (size_t i = 0; i < good.size(); ++i)
    for (int value : {0, 1, 2, 0x7F, 0x80, 0xFE, 0xFF, static_cast<unsigned char>(good[i]) ^ 1}) {
      std::string bad = good;
      bad[i] = static_cast<char>(value);
      Exercise(bad);
    }
}

TEST(HostileCompiledFile, NoRunOfFourFfBytesCrashesTheReader) {
  const std::string good = GoodFile();
  for (size_t i = 0; i + 4 <= good.size(); ++i)
    Exercise(std::string(good).replace(i, 4, 4, '\xFF'));
}

TEST(HostileCompiledFile, CountsOfFourBillionTakeNoTime) {
  TMenuSystem empty;
  const std::string head = SaveBytes(empty).substr(0, SaveBytes(empty).size() - 12);
  const std::string zero(4, '\0'), all(4, '\xFF');
  const std::string bar = "\xFF\xFE\xFF\0\xFF\xFE\xFF\0"s;
  const auto start = std::chrono::steady_clock::now();
  for (const std::string& claim :
       {head + all, head + zero + all, head + zero + zero + all,
        head + zero + zero + "\1\0\0\0"s + bar + all,
        head + zero + zero + "\1\0\0\0"s + bar + zero + all,
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"s, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s}) {
    TMenuSystem system;
    EXPECT_EQ(LoadBytes(system, claim), "CArchiveException");
  }
  // Four billion appended elements would take minutes; the limit leaves room for a loaded machine.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(HostileCompiledFile, MemoryIsReservedOnlyForWhatTheFileCanContain) {
  TMenuSystem empty;
  std::string bytes = SaveBytes(empty);
  bytes = bytes.substr(0, bytes.size() - 12) + std::string(4, '\xFF') + "\0\0\0"s;
  TMenuSystem system;
  EXPECT_EQ(LoadBytes(system, bytes), "CArchiveException");
  EXPECT_LE(system.m_resources.Length(), 2);
}

// As when another program truncates the file meanwhile.
class ShrunkFile : public CMemFile {
 public:
  using CMemFile::CMemFile;
  ULONGLONG GetLength() const override { return CMemFile::GetLength() + 40; }
};

TEST(HostileCompiledFile, AFileTruncatedDuringTheReadEndsLikeATruncatedFile) {
  TMenuSystem system;
  const std::string bytes = SaveBytes(system);
  ShrunkFile file(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
  CArchive ar(&file, CArchive::load);
  try {
    system.Serialize(ar);
    FAIL() << "it has less than it says";
  } catch (CArchiveException* exception) {
    EXPECT_EQ(exception->m_cause, CArchiveException::endOfFile);
    exception->Delete();
  }
}

}  // namespace
