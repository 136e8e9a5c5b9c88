// What the play runner asks of the program that it plays. The driver on Windows answers with real
// input and real windows; tests answer from a diary of their own, with a clock that they set.
#pragma once

#include <chrono>
#include <string>

#include "devhost/play/play_script.h"

namespace devhost {

class PlayWorld {
 public:
  using Milliseconds = std::chrono::milliseconds;
  virtual ~PlayWorld() = default;

  // Carries out a step that acts or dumps; everything but waits, expectations and quit. Gives what
  // went wrong, or nothing.
  virtual std::string Perform(const Step& step) = 0;

  virtual bool IsIdle() = 0;
  virtual bool IsMenuOpen() = 0;
  virtual bool IsPopupOpen() = 0;  // rows of a pop-up stand on the screen
  // Returns when every window timer of up to the send delay that was armed before has had its turn.
  virtual void LetTimersFire() = 0;
  virtual std::string ShellState() = 0;  // JSON text
  virtual bool Variable(const std::string& name, std::string* value) = 0;

  virtual Milliseconds Now() = 0;
  virtual void Pause(Milliseconds time) = 0;
  virtual void Print(const std::string& line) = 0;  // a failure, to whoever started the program
};

}  // namespace devhost
