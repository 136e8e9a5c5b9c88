// The frame window: menu, command line, status bar, dock bars and the MDI client. Menu commands
// call the host core; drawing windows are DrawingChild objects.
#pragma once

#include "afxext.h"
#include "afxwin.h"
#include "devhost/ui/bars/command_bar.h"
#include "devhost/ui/bars/status_bar.h"

namespace devhost {

class MainFrame : public CMDIFrameWnd {
 public:
  MainFrame();
  ~MainFrame() override;

  bool CreateAndShow(const std::wstring& title);
  CommandBar& Commands() { return m_commands; }
  StatusBar& Status() { return m_status; }

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  BOOL PreTranslateMessage(MSG* message) override;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool RunMenuCommand(UINT id);
  bool RunWindowCommand(UINT id);
  void AskAndOpen();
  void OpenDropped(HDROP drop);

  CommandBar m_commands;
  StatusBar m_status;
  HMENU m_windowMenu = nullptr;  // part of the menu bar, owned by the window
  HACCEL m_keys = nullptr;       // destroyed in the destructor
};

MainFrame* TheFrame();  // null before creation and after destruction

}  // namespace devhost
