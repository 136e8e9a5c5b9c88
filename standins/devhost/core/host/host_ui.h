// The interface of the core to its windows. Implemented by the user interface and by test doubles.
// Called on the main thread.
#pragma once

#include <string>
#include <vector>

namespace devhost {

class Document;

enum class Answer { Yes, No, Cancel };
enum class Choices { YesNo, YesNoCancel };

struct AttributeValue {
  std::wstring tag, prompt, value;
};

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
  // A modal question. Drawings may close until it returns.
  virtual Answer Ask(const std::wstring& question, Choices choices) = 0;
  // A modal dialog for the attributes of a reference; drawings may close until it returns. False:
  // cancelled, and the values are unchanged.
  virtual bool EditAttributes(const std::wstring& /*block*/, std::vector<AttributeValue>&) {
    return false;
  }

  // Processes messages while a command waits for input. False: the program ends and the command
  // must be cancelled.
  virtual bool PumpWhileWaiting() = 0;
  virtual void EndProgram() = 0;  // without further questions
};

}  // namespace devhost
