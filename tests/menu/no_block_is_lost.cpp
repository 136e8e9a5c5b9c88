// Linked into the test programs of the engine: at their end as many packed blocks live as at their
// start. Packed memory hides a lost line or text from the leak check of the sanitizer.
#include <gtest/gtest.h>

#include "kernel/packed_memory.h"

namespace {
class NoBlockIsLost : public testing::Environment {
  void SetUp() override { m_before = PackedMemory::LiveBlocks(); }
  void TearDown() override { EXPECT_EQ(PackedMemory::LiveBlocks(), m_before); }
  size_t m_before = 0;
};
[[maybe_unused]] const auto* const g_noBlockIsLost =
    testing::AddGlobalTestEnvironment(new NoBlockIsLost);
}  // namespace
