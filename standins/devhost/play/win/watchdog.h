// Looks after a play from a thread of its own: a step that takes too long ends the program and says
// where; a main thread that takes no message is reported.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "devhost/play/play_runner.h"
#include "ground/plain_types.h"

namespace devhost {

class PlayWatchdog {
 public:
  PlayWatchdog(const PlayRunner& runner, HWND frame);
  ~PlayWatchdog();
  PlayWatchdog(const PlayWatchdog&) = delete;
  PlayWatchdog& operator=(const PlayWatchdog&) = delete;

 private:
  void Watch();
  void CheckStep();
  void CheckMainThread();

  const PlayRunner& m_runner;
  const HWND m_frame;
  std::mutex m_mutex;
  std::condition_variable m_wake;
  bool m_stop = false;
  int m_step = -1;
  std::chrono::steady_clock::time_point m_stepBegan;
  bool m_stuck = false;
  std::thread m_thread;  // last: it uses all of the above
};

}  // namespace devhost
