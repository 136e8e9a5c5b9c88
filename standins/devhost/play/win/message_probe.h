// How long the main thread lets a message wait, measured as another thread finds it: every 20 ms a
// message is sent that the main thread answers when it next looks at its queue, and the answer is
// stamped there. So a loop of a menu, of a dialog or of a drag counts as taking messages whoever
// wrote it, a thread that rests in GetMessage answers at once, and nothing is queued that a script
// waiting for idleness would see. What is measured falls short of the whole silence by up to the
// 20 ms between two messages. One at a time; the play driver's thread makes it.
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

  // `step` gives the number of the step that is being played, on the probe's thread.
  MessageProbe(OnMainThread onMainThread, std::function<int()> step);
  ~MessageProbe() { Stop(); }
  MessageProbe(const MessageProbe&) = delete;
  MessageProbe& operator=(const MessageProbe&) = delete;

  LongestWait Stop();  // a message that still waits counts with the time until now

 private:
  using Clock = std::chrono::steady_clock;

  static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Measure();
  void AwaitAnswer(int number);

  // Of the process, not of the object: the last message may arrive when the play is over.
  static std::atomic<int> s_answered;  // number of the message
  static std::atomic<Clock::rep> s_when;

  const OnMainThread m_onMainThread;
  const std::function<int()> m_step;
  HWND m_window = nullptr;  // message-only, made and destroyed on the main thread
  LongestWait m_longest;    // of the measuring thread until it has been joined
  std::atomic<bool> m_stop{false};
  std::thread m_thread;  // last: it uses all of the above
};

}  // namespace devhost
