// The windows' side of the host core: makes and destroys drawing windows, shows text and prompt,
// turns the pump while a command waits. It also holds back the echo between the two sides: a window
// that the core brought to the front does not report that the user did.
#pragma once

#include <memory>
#include <vector>

#include "devhost/core/host/host_ui.h"
#include "devhost/ui/bars/command_bar.h"
#include "devhost/ui/view/drawing_child.h"

namespace devhost {

class HostUiImpl : public HostUi {
 public:
  DrawingChild* ActiveChild() const;  // the child of the core's current drawing; null without one
  DrawingChild* ChildOf(const Document& document) const;
  CommandBar::Listener CommandListener();

  bool RunWaiting();  // one piece of waiting command text; false when there was none
  bool TextWaits() const;

  void UserActivated(DrawingChild& child);
  void UserCloses(
      DrawingChild& child);  // at the next idle time: the window may not go while it talks

  void DocumentCreated(Document& document) override;
  void DocumentActivated(Document* document) override;
  void DocumentDestroyed(Document& document) override;
  void DocumentTitled(Document& document) override;
  void PictureChanged(Document& document) override;
  void SelectionChanged(Document& document) override;
  void Print(const std::wstring& text) override;
  void PromptChanged(const std::wstring& prompt) override;
  void VariableChanged(const std::wstring& name) override;
  void Alert(const std::wstring& text) override;
  bool PumpWhileWaiting() override;
  void EndProgram() override;

 private:
  bool CloseWaiting();

  std::vector<std::unique_ptr<DrawingChild>> m_children;
  std::vector<std::unique_ptr<DrawingChild>> m_gone;  // windows destroyed, freed at idle time
  std::vector<Document*> m_toClose;
  int m_fromCore = 0;  // above 0: what the windows do now was the core's wish
};

HostUiImpl& TheHostUi();

}  // namespace devhost
