// The allocator of the kernel's short texts. Tested in both builds, although strings do not use it
// under the sanitizers.
#include "kernel/text_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <utility>
#include <vector>

#include "tests/doubles/aligned_blocks.h"

namespace {

struct Block {
  unsigned char* begin;
  size_t size;
};

Block Allocate(size_t size) {
  void* block = TextMemory::Cut(size);
  if (!block) {
    TextMemory::Refill();
    block = TextMemory::Cut(size);
  }
  return {static_cast<unsigned char*>(block), size};
}

TEST(TextMemory, BlocksDoNotOverlapAndAreAligned) {
  std::mt19937 random(5);
  std::vector<Block> blocks;
  for (int i = 0; i < 30000; ++i) {
    blocks.push_back(Allocate(1 + random() % (i % 100 ? 60 : TextMemory::kLargestBlock)));
    ASSERT_NE(blocks.back().begin, nullptr);
    ASSERT_EQ(reinterpret_cast<std::uintptr_t>(blocks.back().begin) % alignof(int), 0u);
    std::memset(blocks.back().begin, i & 0xFF, blocks.back().size);
  }
  for (size_t i = 0; i < blocks.size(); ++i)
    for (size_t at = 0; at < blocks[i].size; ++at) ASSERT_EQ(blocks[i].begin[at], i & 0xFF);
  for (const Block& block : blocks) TextMemory::Free(block.begin);
}

TEST(TextMemory, ChunksAreFreedWithTheirBlocksInAnyOrderAllButTheCurrentOne) {
  std::mt19937 random(6);
  for (int round = 0; round < 3; ++round) {
    std::vector<Block> blocks;
    for (int i = 0; i < 30000; ++i) blocks.push_back(Allocate(1 + random() % 80));
    EXPECT_GT(LiveAlignedBlocks(), 5);
    std::shuffle(blocks.begin(), blocks.end(), random);
    for (const Block& block : blocks) TextMemory::Free(block.begin);
    EXPECT_EQ(LiveAlignedBlocks(), 1);
  }
}

TEST(TextMemory, ALongLivedBlockKeepsOneChunkOnly) {
  const Block kept = Allocate(8);
  *kept.begin = 7;
  for (int i = 0; i < 100000; ++i) TextMemory::Free(Allocate(100).begin);
  EXPECT_LE(LiveAlignedBlocks(), 2);
  EXPECT_EQ(*kept.begin, 7);
  TextMemory::Free(kept.begin);
  EXPECT_EQ(LiveAlignedBlocks(), 1);
}

}  // namespace
