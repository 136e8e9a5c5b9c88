// Measuring how long this thread processes no messages.
#include <gtest/gtest.h>

#include "devhost/play/win/message_probe.h"

namespace devhost {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

bool RunHere(const std::function<void()>& work) {
  work();
  return true;
}

void AwaitSentMessage() {
  while (!(HIWORD(::GetQueueStatus(QS_SENDMESSAGE)) & QS_SENDMESSAGE)) ::SwitchToThread();
}

void KeepSilent(Clock::duration time) {
  for (const auto begin = Clock::now(); Clock::now() - begin < time;) ::SwitchToThread();
}

TEST(MessageProbe, ADelayedMessageIsMeasuredWithItsStep) {
  std::atomic<int> step{7};
  MessageProbe probe(&RunHere, [&] { return step.load(); });
  AwaitSentMessage();
  KeepSilent(60ms);
  step = 8;
  MSG message;
  EXPECT_FALSE(::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) << "no program sees it";
  const LongestWait longest = probe.Stop();
  EXPECT_GE(longest.time, 60ms);
  EXPECT_EQ(longest.step, 7);
}

TEST(MessageProbe, AMessageThatWaitsAtTheEndCounts) {
  MessageProbe probe(&RunHere, [] { return 3; });
  AwaitSentMessage();
  KeepSilent(60ms);
  const LongestWait longest = probe.Stop();
  EXPECT_GE(longest.time, 60ms);
  EXPECT_EQ(longest.step, 3);
}

// The last message of a play may arrive during the next one and must not count there.
TEST(MessageProbe, AnswersToAnEarlierProbeAreIgnored) {
  {
    MessageProbe earlier(&RunHere, [] { return 1; });
    AwaitSentMessage();
  }
  MessageProbe probe(&RunHere, [] { return 2; });
  AwaitSentMessage();
  KeepSilent(60ms);
  EXPECT_GE(probe.Stop().time, 60ms);
}

}  // namespace
}  // namespace devhost
