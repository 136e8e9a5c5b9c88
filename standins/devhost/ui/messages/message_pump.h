// The main thread's message pump. Every message goes first through the filters that modules
// registered, then through the class library's PreTranslateMessage walk, then to its window. When
// nothing waits, idle work runs. The main loop and a command that waits for input share it.
#pragma once

#include <functional>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class MessagePump {
 public:
  using Filter = BOOL (*)(MSG*);

  bool AddFilter(Filter filter);     // false: it is there already
  bool RemoveFilter(Filter filter);  // false: it is not there

  // Work for the time when no message waits; true when it did something and wants another turn.
  void SetIdleWork(std::function<bool()> work) { m_idleWork = std::move(work); }
  // How a message that no filter took goes on: true when it needs no dispatch.
  void SetPreTranslate(std::function<bool(MSG*)> step) { m_preTranslate = std::move(step); }

  // One message, after idle work if none waits. False when WM_QUIT came; it is then posted again,
  // so that every loop further out ends too.
  bool RunOnce();
  bool TakeOne();  // the same without the idle work, for the modal loops of the class library

  // Everything a modal loop does with a message, given one that was taken from the queue.
  void Process(MSG* message);

  // True when the last idle work found nothing to do and only clocks and paints came since. A
  // dialog or a menu that waits for the user makes it quiet too: its own loop says so (MarkQuiet).
  bool IsQuiet() const { return m_quiet; }
  void MarkQuiet();
  void MarkBusy() { m_quiet = false; }
  void SetWhenQuiet(std::function<void()> tell) { m_whenQuiet = std::move(tell); }

 private:
  bool Swallowed(MSG* message);
  bool CountsAsWork(const MSG& message) const;
  void RunIdle();

  std::vector<Filter> m_filters;  // the newest last; asked from the back
  std::function<bool()> m_idleWork;
  std::function<bool(MSG*)> m_preTranslate;
  std::function<void()> m_whenQuiet;
  bool m_quiet = false;
  bool m_idleDue = true;
};

MessagePump& ThePump();

}  // namespace devhost
