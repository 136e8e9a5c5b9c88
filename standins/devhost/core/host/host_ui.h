// What the host core asks of the windows. The development host's user interface implements it;
// tests give a plain double. All calls are on the main thread.
#pragma once

#include <string>

namespace devhost {

class Document;

class HostUi {
 public:
  virtual ~HostUi() = default;

  virtual void DocumentCreated(Document& document) = 0;    // make its window; not yet active
  virtual void DocumentActivated(Document* document) = 0;  // null: the last one has gone
  virtual void DocumentDestroyed(Document& document) = 0;  // its window goes with it
  virtual void DocumentTitled(Document& document) = 0;     // its file name changed
  virtual void PictureChanged(Document& document) = 0;     // entities or view: paint anew
  virtual void SelectionChanged(Document& document) = 0;   // the pick-first set

  virtual void Print(const std::wstring& text) = 0;  // "\n" begins a new line
  virtual void PromptChanged(const std::wstring& prompt) = 0;
  virtual void VariableChanged(const std::wstring& name) = 0;
  virtual void Alert(const std::wstring& text) = 0;  // a box with one button

  // Handles messages for one round while a command waits for input. False: the program is ending
  // and the command must be cancelled.
  virtual bool PumpWhileWaiting() = 0;
  virtual void EndProgram() = 0;  // QUIT was run
};

}  // namespace devhost
