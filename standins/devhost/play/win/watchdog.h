// Monitors a play on its own thread: terminates the program if a step takes too long, and reports
// when the main thread processes no messages.
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
  std::thread m_thread;  // last, because the thread uses all other members
};

}  // namespace devhost
