// Waiting for timers; see the header.
#include "devhost/play/win/timer_barrier.h"

namespace devhost {
namespace {

constexpr UINT kAfterSendDelay = 250;  // ms; the module sends a pressed row after 150

}  // namespace

std::unique_ptr<TimerBarrier> TimerBarrier::Begin(UiPort& port) {
  std::unique_ptr<TimerBarrier> turn(new TimerBarrier(port));
  port.OnMainThread([&] {
    turn->m_window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     GetModuleHandleW(nullptr), nullptr);
    // The timer's identifier is the address of the object.
    SetTimer(turn->m_window, reinterpret_cast<UINT_PTR>(turn.get()), kAfterSendDelay, &Fire);
  });
  return turn->m_window ? std::move(turn) : nullptr;
}

TimerBarrier::~TimerBarrier() {
  if (m_window) m_port.OnMainThread([this] { DestroyWindow(m_window); });
}

void CALLBACK TimerBarrier::Fire(HWND window, UINT, UINT_PTR id, DWORD) {
  KillTimer(window, id);
  reinterpret_cast<TimerBarrier*>(id)->m_over = true;
}

}  // namespace devhost
