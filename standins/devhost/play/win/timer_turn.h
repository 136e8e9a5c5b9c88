// "Every timer armed until now has had its turn", without guessing at a sleep: a timer of our own
// on the main thread, longer than the module's send delay. A main thread that is slow is slow for
// both, so ours still comes last. Used by the play driver before it says that nothing was sent.
#pragma once

#include <atomic>
#include <memory>

#include "devhost/play/ui_port.h"

namespace devhost {

class TimerTurn {
 public:
  // Null when the program is going down.
  static std::unique_ptr<TimerTurn> Begin(UiPort& port);
  ~TimerTurn();
  TimerTurn(const TimerTurn&) = delete;
  TimerTurn& operator=(const TimerTurn&) = delete;

  bool IsOver() const { return m_over; }  // from any thread

 private:
  explicit TimerTurn(UiPort& port) : m_port(port) {}
  static void CALLBACK Fire(HWND window, UINT message, UINT_PTR id, DWORD time);

  UiPort& m_port;
  HWND m_window = nullptr;  // a message-only window, made and destroyed on the main thread
  std::atomic<bool> m_over{false};
};

}  // namespace devhost
