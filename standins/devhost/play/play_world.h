// The interface of the play runner to the program. On Windows the driver implements it with real
// input and windows; tests implement it with a log and a clock that they set.
#pragma once

#include <chrono>
#include <string>

#include "devhost/play/play_script.h"

namespace devhost {

class PlayWorld {
 public:
  using Milliseconds = std::chrono::milliseconds;
  virtual ~PlayWorld() = default;

  // Performs a step other than waits, expectations and quit. Returns the error, or nothing.
  virtual std::string Perform(const Step& step) = 0;

  virtual bool IsIdle() = 0;
  virtual bool IsMenuOpen() = 0;
  virtual bool IsPopupOpen() = 0;  // a pop-up is visible
  // Returns after every window timer with up to the send delay that was set before has fired.
  virtual void WaitForTimers() = 0;
  virtual std::string ShellState() = 0;  // JSON text
  virtual bool Variable(const std::string& name, std::string* value) = 0;
  virtual bool Setting(const std::string& name, std::string* value) = 0;
  virtual std::vector<std::string> HighlightedHandles() = 0;  // of the active drawing
  virtual std::string TypedText() = 0;                        // in the command line's input row
  virtual std::string TipText() = 0;  // of the tool tip shown; empty without
  // The texts that an object of the active drawing draws, in their order. False: no such object.
  virtual bool DrawnTexts(const std::string& handle, std::vector<std::string>* texts) = 0;
  // Empty if the pointer is on the target, to one pixel; otherwise where it is, or why not.
  virtual std::string PointerAway(const Target& target) = 0;

  virtual Milliseconds Now() = 0;
  virtual void Pause(Milliseconds time) = 0;
  virtual void Print(const std::string& line) = 0;  // prints a failure on the error stream
};

}  // namespace devhost
