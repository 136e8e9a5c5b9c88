// The worker thread of the preview, which the module does not start.
#include "editor/win/my_thread.h"

#include <gtest/gtest.h>

#include "tests/module/win/host_process.h"

namespace {

constexpr DWORD kLongWait = 10000;  // milliseconds; only a failure takes as long

TEST(PreviewThread, RunsAtIdlePriorityUntilItIsEndedAndReturnsZero) {
  HostProcess::Get();
  CMyThread thread;
  ASSERT_TRUE(thread.Start());
  EXPECT_EQ(thread.GetThreadPriority(), THREAD_PRIORITY_IDLE);
  EXPECT_EQ(::WaitForSingleObject(thread.m_hThread, 0), static_cast<DWORD>(WAIT_TIMEOUT));
  thread.End();
  ASSERT_EQ(::WaitForSingleObject(thread.m_hThread, kLongWait), WAIT_OBJECT_0);
  DWORD result = 1;
  EXPECT_TRUE(::GetExitCodeThread(thread.m_hThread, &result));
  EXPECT_EQ(result, 0u);
}

TEST(PreviewThread, ARequestThatIsTakenBackOrMadeWithoutADrawingDoesNothing) {
  HostProcess::Get();
  CMyThread thread;
  ASSERT_TRUE(thread.Start());
  thread.SetRequest();
  thread.ClearRequest();
  thread.SetRequest();
  thread.End();
  EXPECT_EQ(::WaitForSingleObject(thread.m_hThread, kLongWait), WAIT_OBJECT_0);
}

}  // namespace
