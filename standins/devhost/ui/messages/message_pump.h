// The main thread's message pump. A message passes the filters of modules, then PreTranslateMessage
// of the class library, then it is dispatched. Without messages, idle work runs. Used by the main
// loop and by commands that wait for input.
#pragma once

#include <functional>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class MessagePump {
 public:
  using Filter = BOOL (*)(MSG*);

  bool AddFilter(Filter filter);     // false: already added
  bool RemoveFilter(Filter filter);  // false: not found

  // Work to do when no message waits; returns true if it did something and is to be called again.
  void SetIdleWork(std::function<bool()> work) { m_idleWork = std::move(work); }
  // Called for messages that no filter took; returns true if the message needs no dispatch.
  void SetPreTranslate(std::function<bool(MSG*)> step) { m_preTranslate = std::move(step); }

  // Processes one message, after idle work if none waits. False after WM_QUIT, which is posted
  // again so that outer loops end too.
  bool RunOnce();
  bool PumpOne();  // without idle work, for modal loops of the class library

  // Processes a message that was taken from the queue.
  void Process(MSG* message);

  // True if the last idle work had nothing to do and only timers and paints arrived since. Modal
  // loops of dialogs and menus call MarkIdle when they wait.
  bool IsIdle() const { return m_idle; }
  void MarkIdle();
  void MarkBusy() { m_idle = false; }
  void SetIdleCallback(std::function<void()> callback) { m_idleCallback = std::move(callback); }

 private:
  bool IsFiltered(MSG* message);
  bool CountsAsWork(const MSG& message) const;
  void RunIdle();

  std::vector<Filter> m_filters;  // in order of registration; called from the last
  std::function<bool()> m_idleWork;
  std::function<bool(MSG*)> m_preTranslate;
  std::function<void()> m_idleCallback;
  bool m_idle = false;
  bool m_idleDue = true;
};

MessagePump& ThePump();

}  // namespace devhost
