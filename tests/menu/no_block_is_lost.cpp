// Checks at the end of the program that no chunk of records is allocated. Under the sanitizers
// records are heap blocks, and the leak check finds those that are not freed.
#include <gtest/gtest.h>

#include "kernel/twcstring.h"
#include "tests/doubles/aligned_blocks.h"

namespace {
class NoBlockIsLost : public testing::Environment {
  void SetUp() override {
    { const TWCString text(L"a"); }  // the pool of short texts keeps its current chunk
    m_before = LiveAlignedBlocks();
  }
  void TearDown() override { EXPECT_EQ(LiveAlignedBlocks(), m_before); }
  long m_before = 0;
};
[[maybe_unused]] const auto* const g_noBlockIsLost =
    testing::AddGlobalTestEnvironment(new NoBlockIsLost);
}  // namespace
