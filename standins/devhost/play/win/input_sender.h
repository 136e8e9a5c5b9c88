// Sends mouse and keyboard input through the window system's queue, with the timing of a fast user.
// Positions are screen coordinates. Used on the play driver's thread.
#pragma once

#include <functional>
#include <string>

#include "devhost/play/key_names.h"
#include "ground/plain_types.h"

namespace devhost {

class InputSender {
 public:
  enum class Button { Left, Right, Middle };

  // `pause` waits some milliseconds.
  explicit InputSender(std::function<void(int)> pause) : m_pause(std::move(pause)) {}

  void Move(POINT to);
  void Click(POINT at, Button button, int times);
  // Puts both clicks into the queue at once, so that no timer fires between them.
  void ClickTwo(POINT first, POINT second);
  void Hold(POINT at, Button button, int milliseconds);
  void Press(POINT at, Button button);    // without a release
  void Release(POINT at, Button button);  // without a press
  void Drag(POINT from, POINT to, Button button = Button::Left);
  void Wheel(POINT at, int delta);
  void Press(const KeyChord& chord);
  void Type(const std::wstring& text);

  // Holds modifier keys during its lifetime.
  class HeldKeys {
   public:
    HeldKeys(InputSender& sender, bool ctrl, bool shift);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

   private:
    InputSender& m_sender;
    bool m_ctrl, m_shift;
  };

 private:
  void AvoidDoubleClick(POINT at);
  void RestoreModifiers();
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
