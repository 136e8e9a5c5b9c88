// The timer that comes after all others.
#include "devhost/play/win/timer_turn.h"

namespace devhost {
namespace {

constexpr UINT kLongerThanTheSendDelay = 250;  // ms; a pressed line is sent after 150

}  // namespace

std::unique_ptr<TimerTurn> TimerTurn::Begin(UiPort& port) {
  std::unique_ptr<TimerTurn> turn(new TimerTurn(port));
  port.OnMainThread([&] {
    turn->m_window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     GetModuleHandleW(nullptr), nullptr);
    // The object's address is the timer's number, by which it is found again.
    SetTimer(turn->m_window, reinterpret_cast<UINT_PTR>(turn.get()), kLongerThanTheSendDelay,
             &Fire);
  });
  return turn->m_window ? std::move(turn) : nullptr;
}

TimerTurn::~TimerTurn() {
  if (m_window) m_port.OnMainThread([this] { DestroyWindow(m_window); });
}

void CALLBACK TimerTurn::Fire(HWND window, UINT, UINT_PTR id, DWORD) {
  KillTimer(window, id);
  reinterpret_cast<TimerTurn*>(id)->m_over = true;
}

}  // namespace devhost
