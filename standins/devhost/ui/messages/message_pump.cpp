// The message pump and the published functions for message filters.
#include "devhost/ui/messages/message_pump.h"

#include <algorithm>

#include "afxext.h"

#include "devhost/core/base/start_trace.h"
#include "rxmfcapi.h"

namespace devhost {

MessagePump& ThePump() {
  static MessagePump pump;
  return pump;
}

bool MessagePump::AddFilter(Filter filter) {
  if (!filter || std::find(m_filters.begin(), m_filters.end(), filter) != m_filters.end())
    return false;
  m_filters.push_back(filter);
  return true;
}

bool MessagePump::RemoveFilter(Filter filter) {
  const auto found = std::find(m_filters.begin(), m_filters.end(), filter);
  if (found == m_filters.end()) return false;
  m_filters.erase(found);
  return true;
}

// Filters may add and remove themselves and others while they run, and may process messages
// themselves. One that was removed meanwhile is not called; a new one sees the next message.
bool MessagePump::IsFiltered(MSG* message) {
  const std::vector<Filter> registered = m_filters;
  for (auto filter = registered.rbegin(); filter != registered.rend(); ++filter)
    if (std::find(m_filters.begin(), m_filters.end(), *filter) != m_filters.end() &&
        (*filter)(message))
      return true;
  return false;
}

void MessagePump::Process(MSG* message) {
  if (IsFiltered(message)) return;
  if (m_preTranslate && m_preTranslate(message)) return;
  if (message->message == WM_TIMER)
    TheStartTrace().Step("WM_TIMER", std::to_string(message->wParam));
  ::TranslateMessage(message);
  ::DispatchMessageW(message);
}

bool MessagePump::CountsAsWork(const MSG& message) const {
  return message.message != WM_TIMER && message.message != WM_PAINT &&
         message.message != 0x118 /* WM_SYSTIMER: the caret blinks */ && message.message != WM_NULL;
}

void MessagePump::MarkIdle() {
  m_idle = true;
  TheStartTrace().MarkIdle();
  if (m_idleCallback) m_idleCallback();
}

void MessagePump::RunIdle() {
  MSG message;
  while (m_idleDue && !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
    if (m_idleWork && m_idleWork()) continue;
    m_idleDue = false;
    MarkIdle();
  }
}

bool MessagePump::RunOnce() {
  RunIdle();
  return PumpOne();
}

bool MessagePump::PumpOne() {
  MSG message{};
  if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
    ::PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  if (CountsAsWork(message)) m_idle = false;
  m_idleDue = true;
  Process(&message);
  return true;
}

}  // namespace devhost

BOOL acedRegisterFilterWinMsg(AcedFilterWinMsgFn filter) {
  devhost::TheStartTrace().Step("acedRegisterFilterWinMsg");
  return devhost::ThePump().AddFilter(filter);
}

BOOL acedRemoveFilterWinMsg(AcedFilterWinMsgFn filter) {
  return devhost::ThePump().RemoveFilter(filter);
}
