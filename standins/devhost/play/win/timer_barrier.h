// Waits until all timers that were set before have fired, without a fixed sleep: sets a timer on
// the main thread that is longer than the module's send delay. A slow main thread delays both, so
// this timer fires last. Used before the driver reports that nothing was sent.
#pragma once

#include <atomic>
#include <memory>

#include "devhost/play/ui_port.h"

namespace devhost {

class TimerBarrier {
 public:
  // Null if the program ends.
  static std::unique_ptr<TimerBarrier> Begin(UiPort& port);
  ~TimerBarrier();
  TimerBarrier(const TimerBarrier&) = delete;
  TimerBarrier& operator=(const TimerBarrier&) = delete;

  bool IsOver() const { return m_over; }  // from any thread

 private:
  explicit TimerBarrier(UiPort& port) : m_port(port) {}
  static void CALLBACK Fire(HWND window, UINT message, UINT_PTR id, DWORD time);

  UiPort& m_port;
  HWND m_window = nullptr;  // message-only; created and destroyed on the main thread
  std::atomic<bool> m_over{false};
};

}  // namespace devhost
