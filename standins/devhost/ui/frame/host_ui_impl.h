// Implements HostUi: creates and destroys drawing windows, shows text and prompt, pumps messages
// while a command waits. Activations that the core caused are not reported back to it.
#pragma once

#include <memory>
#include <vector>

#include "devhost/core/host/host_ui.h"
#include "devhost/ui/bars/command_bar.h"
#include "devhost/ui/view/drawing_child.h"

namespace devhost {

class HostUiImpl : public HostUi {
 public:
  DrawingChild* ActiveChild() const;  // the child of the current drawing, or null
  DrawingChild* ChildOf(const Document& document) const;
  CommandBar::Listener CommandListener();

  bool RunWaiting();  // one item of waiting input; false: none
  bool HasPendingInput() const;

  // A window that was activated while activation is disabled loses it at the next idle time.
  void OnUserActivate(DrawingChild& child);
  bool MayChangeDrawing() const;

  void DocumentCreated(Document& document) override;
  void DocumentActivated(Document* document) override;
  void DocumentDestroyed(Document& document) override;
  void DocumentTitled(Document& document) override;
  void PictureChanged(Document& document) override;
  void ViewChanged(Document& document) override;
  void SelectionChanged(Document& document) override;
  void Print(const std::wstring& text) override;
  void PromptChanged(const std::wstring& prompt) override;
  void VariableChanged(const std::wstring& name) override;
  void Alert(const std::wstring& text) override;
  Answer Ask(const std::wstring& question, Choices choices) override;
  bool EditAttributes(const std::wstring& block, std::vector<AttributeValue>& values) override;
  bool PumpWhileWaiting() override;
  void EndProgram() override;

 private:
  bool ReturnActivation();

  std::vector<std::unique_ptr<DrawingChild>> m_children;
  // Windows that are destroyed already, deleted at idle time.
  std::vector<std::unique_ptr<DrawingChild>> m_destroyed;
  bool m_mustReturnActivation = false;
  int m_fromCore = 0;  // above 0 during calls from the core
};

HostUiImpl& TheHostUi();

}  // namespace devhost
