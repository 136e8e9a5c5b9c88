// The allocator of the menu's records. Tested in both builds, although the model does not use it
// under the sanitizers.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

#include "menu/record_memory.h"
#include "tests/doubles/aligned_blocks.h"

namespace {

struct Record {
  unsigned char* begin;
  size_t size;
};

std::vector<Record> AllocateMany(std::mt19937& random, int count) {
  std::vector<Record> records;
  for (int i = 0; i < count; ++i) {
    const size_t size = 1 + random() % (i % 100 ? 120 : RecordMemory::kLargestRecord);
    records.push_back({static_cast<unsigned char*>(RecordMemory::Allocate(size)), size});
    std::memset(records.back().begin, i & 0xFF, size);
  }
  return records;
}

TEST(RecordMemory, RecordsDoNotOverlapAndAreAligned) {
  std::mt19937 random(5);
  const std::vector<Record> records = AllocateMany(random, 20000);
  for (size_t i = 0; i < records.size(); ++i) {
    ASSERT_EQ(reinterpret_cast<std::uintptr_t>(records[i].begin) % alignof(double), 0u);
    for (size_t at = 0; at < records[i].size; ++at) ASSERT_EQ(records[i].begin[at], i & 0xFF);
  }
  for (const Record& record : records) RecordMemory::Free(record.begin);
}

TEST(RecordMemory, EveryChunkIsFreedWithItsLastRecord) {
  std::mt19937 random(6);
  const long before = LiveAlignedBlocks();
  for (int count : {1, 2, 20000}) {
    std::vector<Record> records = AllocateMany(random, count);
    std::shuffle(records.begin(), records.end(), random);
    EXPECT_GT(LiveAlignedBlocks(), before);
    for (const Record& record : records) RecordMemory::Free(record.begin);
    EXPECT_EQ(LiveAlignedBlocks(), before);
  }
}

TEST(RecordMemory, ARecordThatStaysKeepsOneChunk) {
  std::mt19937 random(7);
  const long before = LiveAlignedBlocks();
  std::vector<Record> records = AllocateMany(random, 20000);
  const Record kept = records[10000];
  for (const Record& record : records)
    if (record.begin != kept.begin) RecordMemory::Free(record.begin);
  EXPECT_EQ(LiveAlignedBlocks(), before + 1);
  for (size_t at = 0; at < kept.size; ++at) ASSERT_EQ(kept.begin[at], 10000 & 0xFF);
  RecordMemory::Free(kept.begin);
  EXPECT_EQ(LiveAlignedBlocks(), before);
}

}  // namespace
