// The longest wait of a play and its text.
#include <gtest/gtest.h>

#include "devhost/play/longest_wait.h"

namespace devhost {
namespace {

using namespace std::chrono_literals;

TEST(LongestWait, TheLongestWaitIsStoredWithItsStep) {
  LongestWait wait;
  EXPECT_EQ(wait.step, -1);
  wait.Note(0us, 0);
  EXPECT_EQ(wait.step, 0);
  wait.Note(120ms, 3);
  wait.Note(40ms, 4);
  wait.Note(120ms, 5);
  EXPECT_EQ(wait.time, 120ms);
  EXPECT_EQ(wait.step, 3);
}

TEST(LongestWait, TheTextHasSecondsAndTheLine) {
  EXPECT_EQ(LongestWaitText("a.script", 120400us, 14), "a.script: longest wait 0.120 s (line 14)");
  EXPECT_EQ(LongestWaitText("a.script", 2s, 0), "a.script: longest wait 2.000 s");
}

}  // namespace
}  // namespace devhost
