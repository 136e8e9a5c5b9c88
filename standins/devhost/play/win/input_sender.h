// Mouse and keys as a user's hands give them: through the window system's input queue, at the pace
// of quick hands. Knows no window; places are screen points. Called on the play driver's thread.
#pragma once

#include <functional>
#include <string>

#include "devhost/play/key_names.h"
#include "ground/plain_types.h"

namespace devhost {

class InputSender {
 public:
  enum class Button { Left, Right };

  // `pause` waits some milliseconds.
  explicit InputSender(std::function<void(int)> pause) : m_pause(std::move(pause)) {}

  void Move(POINT to);
  void Click(POINT at, Button button, int times);
  // All of it is in the queue before the program takes any, so that no timer comes in between.
  void ClickBoth(POINT first, POINT second);
  void Hold(POINT at, Button button, int milliseconds);
  void Drag(POINT from, POINT to);
  void Wheel(POINT at, int delta);
  void Press(const KeyChord& chord);
  void Type(const std::wstring& text);

  // Holds modifier keys down while it lives.
  class Held {
   public:
    Held(InputSender& sender, bool ctrl, bool shift);
    ~Held();
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

   private:
    InputSender& m_sender;
    bool m_ctrl, m_shift;
  };

 private:
  void KeepApart(POINT at);
  void KeepHeld();
  void Mouse(POINT at, DWORD flags, DWORD data = 0);
  void Key(int key, bool extended, bool up);
  void TypeUnit(wchar_t unit);
  void PressKey(int key, bool shift);

  std::function<void(int)> m_pause;
  bool m_ctrlHeld = false, m_shiftHeld = false;
  DWORD m_lastClick = 0;  // ticks
  POINT m_lastAt{};
};

}  // namespace devhost
