// The message pump with real messages: order of processing, idle state.
#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "afxext.h"

#include "devhost/ui/messages/dialog_watch.h"
#include "devhost/ui/messages/main_thread.h"
#include "devhost/ui/messages/message_pump.h"
#include "rxmfcapi.h"

using devhost::MainThread;
using devhost::MessagePump;
using devhost::ThePump;

namespace {

std::string g_seen;
UINT g_swallow = 0;

BOOL First(MSG* message) {
  if (message->message >= WM_APP) g_seen += "1";
  return FALSE;
}

BOOL Second(MSG* message) {
  if (message->message >= WM_APP) g_seen += "2";
  return message->message == g_swallow;
}

BOOL RemovesItself(MSG* message) {
  if (message->message >= WM_APP) g_seen += "r";
  acedRemoveFilterWinMsg(&RemovesItself);
  return FALSE;
}

BOOL RemovesTheFirst(MSG* message) {
  if (message->message >= WM_APP) g_seen += "x";
  acedRemoveFilterWinMsg(&First);
  return FALSE;
}

BOOL PumpsOnce(MSG* message) {
  if (message->message == WM_APP + 4) g_seen += "p";
  if (message->message != WM_APP + 3) return FALSE;
  g_seen += "<";
  ThePump().PumpOne();
  g_seen += ">";
  return FALSE;
}

class Pump : public testing::Test {
 protected:
  void SetUp() override {
    g_seen.clear();
    g_swallow = 0;
    ThePump().SetPreTranslate([](MSG* message) {
      if (message->message >= WM_APP) g_seen += "t";
      return message->message == WM_APP + 9;
    });
    ThePump().SetIdleWork(nullptr);
  }
  void TearDown() override {
    acedRemoveFilterWinMsg(&First);
    acedRemoveFilterWinMsg(&Second);
    ThePump().SetPreTranslate(nullptr);
    ThePump().SetIdleWork(nullptr);
  }
  static std::string Pumped(UINT message) {
    g_seen.clear();
    ::PostThreadMessageW(::GetCurrentThreadId(), message, 0, 0);
    EXPECT_TRUE(ThePump().RunOnce());
    return g_seen;
  }
};

}  // namespace

TEST_F(Pump, TheLatestFilterRunsFirstAndTranslationLast) {
  EXPECT_TRUE(acedRegisterFilterWinMsg(&First));
  EXPECT_TRUE(acedRegisterFilterWinMsg(&Second));
  EXPECT_EQ(Pumped(WM_APP), "21t");
}

TEST_F(Pump, AFilterThatTakesAMessageStopsItsProcessing) {
  acedRegisterFilterWinMsg(&First);
  acedRegisterFilterWinMsg(&Second);
  g_swallow = WM_APP + 1;
  EXPECT_EQ(Pumped(WM_APP + 1), "2");
  EXPECT_EQ(Pumped(WM_APP + 2), "21t");
}

TEST_F(Pump, AFilterIsRegisteredOnceAndRemovedOnce) {
  EXPECT_TRUE(acedRegisterFilterWinMsg(&First));
  EXPECT_FALSE(acedRegisterFilterWinMsg(&First));
  EXPECT_TRUE(acedRemoveFilterWinMsg(&First));
  EXPECT_FALSE(acedRemoveFilterWinMsg(&First));
  EXPECT_FALSE(acedRegisterFilterWinMsg(nullptr));
  EXPECT_EQ(Pumped(WM_APP), "t");
}

TEST_F(Pump, AFilterMayRemoveItselfWhileItRuns) {
  acedRegisterFilterWinMsg(&First);
  acedRegisterFilterWinMsg(&RemovesItself);
  EXPECT_EQ(Pumped(WM_APP), "r1t");
  EXPECT_EQ(Pumped(WM_APP), "1t");
}

TEST_F(Pump, EveryFilterIsAskedOnceWhenAnOlderOneIsRemovedMeanwhile) {
  acedRegisterFilterWinMsg(&First);
  acedRegisterFilterWinMsg(&Second);
  acedRegisterFilterWinMsg(&RemovesTheFirst);
  EXPECT_EQ(Pumped(WM_APP), "x2t") << "the removed one is not asked, no other is asked twice";
  acedRemoveFilterWinMsg(&RemovesTheFirst);
}

TEST_F(Pump, AFilterMayRunTheMessageLoopItself) {
  acedRegisterFilterWinMsg(&First);
  acedRegisterFilterWinMsg(&PumpsOnce);
  ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP + 3, 0, 0);
  ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP + 4, 0, 0);
  EXPECT_TRUE(ThePump().RunOnce());
  EXPECT_EQ(g_seen, "<p1t>1t") << "the inner message is whole before the outer one goes on";
  acedRemoveFilterWinMsg(&PumpsOnce);
}

TEST_F(Pump, IdleWorkRunsUntilNoneIsLeftBeforeWaiting) {
  int turns = 0;
  ThePump().SetIdleWork([&] {
    if (++turns == 3) ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
    return turns < 3;
  });
  EXPECT_TRUE(ThePump().RunOnce());
  EXPECT_EQ(turns, 3);
  EXPECT_EQ(g_seen, "t");
}

TEST_F(Pump, IsIdleAfterIdleWorkAndBusyAfterAMessage) {
  ThePump().SetIdleWork([&] {
    EXPECT_FALSE(ThePump().IsIdle());
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
    return false;
  });
  EXPECT_TRUE(ThePump().RunOnce());
  EXPECT_FALSE(ThePump().IsIdle()) << "a message came after the idle time";
}

TEST_F(Pump, ADialogThatWaitsForTheUserMakesItIdle) {
  devhost::DialogWatch watch;
  EXPECT_EQ(Pumped(WM_APP), "t");
  EXPECT_FALSE(ThePump().IsIdle());
  bool called = false;
  ThePump().SetIdleCallback([&] { called = true; });
  const HWND owner = ::CreateWindowExW(0, L"Static", nullptr, WS_OVERLAPPED, 0, 0, 9, 9, nullptr,
                                       nullptr, nullptr, nullptr);
  ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, 0);
  EXPECT_FALSE(ThePump().IsIdle()) << "no dialog is there that could have said so";
  const HWND dialog = ::CreateWindowExW(0, L"#32770", nullptr, WS_POPUP, 0, 0, 9, 9, owner, nullptr,
                                        nullptr, nullptr);
  ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, 0);
  EXPECT_TRUE(ThePump().IsIdle());
  EXPECT_TRUE(called);
  ThePump().SetIdleCallback(nullptr);
  ::DestroyWindow(dialog);
  ::DestroyWindow(owner);
}

TEST_F(Pump, TheQuitMessageEndsEveryLoop) {
  ::PostQuitMessage(7);
  EXPECT_FALSE(ThePump().PumpOne());
  EXPECT_FALSE(ThePump().PumpOne()) << "the loop further out sees it too";
  MSG message{};
  EXPECT_TRUE(::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
}

TEST(MainThread, RunsWorkOfAnotherThreadUntilCallsAreRejected) {
  MainThread mainThread;
  DWORD ranOn = 0;
  bool first = false, second = true;
  std::thread other([&] {
    first = mainThread.Run([&] { ranOn = ::GetCurrentThreadId(); });
    mainThread.Run([&] { mainThread.RejectCalls(); });
    second = mainThread.Run([&] { ADD_FAILURE() << "ran although it was to refuse"; });
    ::PostThreadMessageW(mainThread.Id(), WM_APP, 0, 0);
  });
  MSG message{};
  while (message.message != WM_APP && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
  }
  other.join();
  EXPECT_EQ(ranOn, mainThread.Id());
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
}
