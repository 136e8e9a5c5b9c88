// What reading a compiled file allocates is in proportion to the size of the file, whatever counts
// it contains. memory_faults counts every allocation.
#include <gtest/gtest.h>

#include <string>

#include "tests/menu/memory_faults.h"
#include "tests/menu/good_file.h"
#include "tests/menu/menu_testing.h"

namespace {

using namespace std::string_literals;

const std::string kMany(4, '\xFF');
const std::string kNone(4, '\0');
const std::string kOne = "\1\0\0\0"s;

// The shortest header, with one byte per character: 40 bytes before the count of resources.
std::string Head() { return "\x1AQuivera Compiled Menu File" + kOne + kNone + kNone + "\0"s; }

class CompiledMemory : public testing::Test {
 protected:
  // Reads one file first, so that allocations made once in a process and the first chunk of a pool
  // are not counted.
  CompiledMemory() {
    EXPECT_EQ(LoadBytes(m_before, Head() + kNone + kNone + kOne + "\1n\0"s + kNone + kNone), "");
  }

  memory_faults::Count Load(const std::string& bytes, std::string& thrown) {
    memory_faults::Begin();
    {
      TMenuSystem system;
      const std::string told = LoadBytes(system, bytes);
      memory_faults::Pause pause;
      thrown = told;
    }
    return memory_faults::End();
  }

  TMenuSystem m_before;
};

// The archive's buffer of 4 KiB, the copy of the file, and a little.
constexpr size_t kFewKilobytes = 8 * 1024;

TEST_F(CompiledMemory, CountsOfFourBillionAllocateAFewKilobytes) {
  const std::string bar = Head() + kNone + kNone + kOne + "\0\0"s;
  const std::string longest = "\xFF\xFF\xFF"s;  // the form of a string with a four-byte length
  const struct {
    const char* what;
    std::string bytes;
  } claims[] = {
      {"resources", Head() + kMany},
      {"switches", Head() + kNone + kMany},
      {"states", Head() + kNone + kOne + "\0\0\0"s + kMany},
      {"blocks", Head() + kNone + kNone + kMany},
      {"groups", bar + kMany},
      {"lines", bar + kNone + kMany},
      {"lines of a sub-menu", bar + kNone + kOne + "\0\0"s + kOne + "\0\0"s + kNone + kMany},
      {"narrow characters", Head().substr(0, 39) + longest + kMany},
      {"wide characters", Head().substr(0, 39) + "\xFF\xFE\xFF"s + longest + kMany},
      {"characters in a group", bar + kOne + "\x08\0"s + longest + kMany},
      {"characters of the magic", longest + kMany},
  };
  for (const auto& claim : claims) {
    SCOPED_TRACE(claim.what);
    EXPECT_LE(claim.bytes.size(), 80u);
    std::string thrown;
    const memory_faults::Count count = Load(claim.bytes, thrown);
    EXPECT_EQ(thrown, "CArchiveException");
    EXPECT_LE(count.bytes, kFewKilobytes);
    EXPECT_LT(count.allocations, 100);
  }
}

// An empty line has 21 bytes in a file and is an object with five strings in memory. A pool of
// texts may allocate one chunk of 32 KiB.
size_t BoundFor(size_t bytes) { return kFewKilobytes + 32 * 1024 + 32 * bytes; }

TEST_F(CompiledMemory, EveryPrefixAllocatesInProportionToItsSize) {
  const std::string good = GoodFile();
  std::string thrown;
  for (size_t i = 0; i <= good.size(); ++i)
    EXPECT_LE(Load(good.substr(0, i), thrown).peakBytes, BoundFor(i)) << i;
}

TEST_F(CompiledMemory, EveryChangedByteAllocatesInProportionToTheFile) {
  const std::string good = GoodFile();
  std::string thrown;
  for (size_t i = 0; i < good.size(); ++i)
    for (int value = 0; value < 256; ++value) {
      std::string bad = good;
      bad[i] = static_cast<char>(value);
      const memory_faults::Count count = Load(bad, thrown);
      ASSERT_LE(count.peakBytes, BoundFor(bad.size())) << i << " " << value << " " << thrown;
      ASSERT_EQ(memory_faults::FreeLost(), 0) << i << " " << value;
    }
}

// The greatest ratio of memory to file size: lines, sub-menus, groups, states and resources that
// are all empty.
TEST_F(CompiledMemory, EmptyElementsAllocateAtMostThirtyTwoBytesPerByte) {
  constexpr unsigned kCount = 20000;
  std::string count(4, '\0');
  for (int i = 0; i < 4; ++i) count[static_cast<size_t>(i)] = static_cast<char>(kCount >> 8 * i);
  const auto times = [](const std::string& text) {
    std::string all;
    for (unsigned i = 0; i < kCount; ++i) all += text;
    return all;
  };
  const std::string line = "\0\0"s + kNone + kMany + kNone + "\0\0\0"s + kMany;
  const std::string bars = Head() + kNone + kNone;
  for (const std::string& bytes : {Head() + count + times("\0\0\0"s) + kNone + kNone,
                                   Head() + kNone + count + times("\0\0\0"s + kNone) + kNone,
                                   bars + count + times("\0\0"s + kNone + kNone),
                                   bars + kOne + "\0\0"s + count + times("\x88\x13"s) + kNone,
                                   bars + kOne + "\0\0"s + kNone + count + times(line)}) {
    std::string thrown;
    const memory_faults::Count used = Load(bytes, thrown);
    EXPECT_EQ(thrown, "");
    EXPECT_LE(used.peakBytes, BoundFor(bytes.size())) << bytes.size();
  }
}

}  // namespace
