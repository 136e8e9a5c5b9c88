// The interface of the core to its windows. Implemented by the user interface and by test doubles.
// Called on the main thread.
#pragma once

#include <string>

namespace devhost {

class Document;

class HostUi {
 public:
  virtual ~HostUi() = default;

  virtual void DocumentCreated(Document& document) = 0;    // create its window, not yet active
  virtual void DocumentActivated(Document* document) = 0;  // null: no drawing is open
  virtual void DocumentDestroyed(Document& document) = 0;  // destroy its window
  virtual void DocumentTitled(Document& document) = 0;     // its file name changed
  virtual void PictureChanged(Document& document) = 0;     // entities changed: repaint
  // Only views, viewports or the user coordinate system changed: repaint the same entities.
  virtual void ViewChanged(Document& document) { PictureChanged(document); }
  virtual void SelectionChanged(Document& document) = 0;  // the pick-first set

  virtual void Print(const std::wstring& text) = 0;  // "\n" begins a new line
  virtual void PromptChanged(const std::wstring& prompt) = 0;
  virtual void VariableChanged(const std::wstring& name) = 0;
  virtual void Alert(const std::wstring& text) = 0;  // a message box with OK

  // Processes messages while a command waits for input. False: the program ends and the command
  // must be cancelled.
  virtual bool PumpWhileWaiting() = 0;
  virtual void EndProgram() = 0;  // QUIT was run
};

}  // namespace devhost
