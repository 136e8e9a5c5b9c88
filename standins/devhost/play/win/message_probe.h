// Measures how long messages wait for the main thread. Every 20 ms a message is sent with
// SendNotifyMessage; its handler stores the time. Every message loop counts, also those of menus,
// dialogs and drags; a thread that waits in GetMessage answers at once; nothing is posted that a
// script waiting for idleness would see. A measured time is up to 20 ms too short. One object at a
// time, created on the play driver's thread.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include "devhost/play/longest_wait.h"
#include "ground/plain_types.h"

namespace devhost {

class MessageProbe {
 public:
  using OnMainThread = std::function<bool(const std::function<void()>&)>;  // see UiPort

  // `step` returns the index of the current step; called on the probe's thread.
  MessageProbe(OnMainThread onMainThread, std::function<int()> step);
  ~MessageProbe() { Stop(); }
  MessageProbe(const MessageProbe&) = delete;
  MessageProbe& operator=(const MessageProbe&) = delete;

  LongestWait Stop();  // a message that still waits counts with the time until now

 private:
  using Clock = std::chrono::steady_clock;

  static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Measure();
  void MeasureOnce(int number);

  // Static, because the last message may arrive after the play.
  static std::atomic<int> s_answered;  // number of the message
  static std::atomic<Clock::rep> s_when;

  const OnMainThread m_onMainThread;
  const std::function<int()> m_step;
  HWND m_window = nullptr;  // message-only; created and destroyed on the main thread
  LongestWait m_longest;    // used by the measuring thread until it is joined
  std::atomic<bool> m_stop{false};
  std::thread m_thread;  // last, because the thread uses all other members
};

}  // namespace devhost
