// The context window: a hidden child of the host frame that owns the one loaded menu, carries the
// timers which finish the start-up, and opens drawings that were asked for from outside. The owner
// of the pop-up menus on the drawing is meant to be this window too; none is built here yet, so no
// bar is ever current. Made and ended by InitContextWindow alone.
#pragma once

#include "afxwin.h"
#include "frame/containers/tdptrlist.h"
#include "menu/menu_system.h"
#include "popup/open_timers.h"

// What the window's readiness timer asks of the module. The frame implements it.
class StartupSteps {
 public:
  virtual ~StartupSteps() = default;
  virtual void OnMenuReadiness() = 0;
};

class CContextMenuWnd : public CWnd {
 public:
  static constexpr int kReadinessTimer = 20;
  static constexpr UINT kControlId = 310;
  static constexpr UINT kOpenRequestMessage = 0x500;

  explicit CContextMenuWnd(StartupSteps& steps) : m_steps(steps) {}

  // Hidden child of the frame; starts the readiness timer.
  BOOL CreateIn(CWnd* frame);
  void StopReadinessTimer() { KillTimer(kReadinessTimer); }

  // Starts reopening what stands in m_openQueue; nothing with an empty queue.
  void StartOpening();

  BOOL PreTranslateMessage(MSG* message) override;

  TMenuSystem m_menuSystem;
  TMenuBar* m_pBar = nullptr;      // of the present pop-up; not owned
  TMenuBar* m_pToolBar = nullptr;  // the menu's ToolBar block; stays in m_menuSystem
  TDPtrList<CString> m_openQueue;  // files waiting to be opened

 protected:
  afx_msg void OnTimer(UINT_PTR id);
  DECLARE_MESSAGE_MAP()

 private:
  StartupSteps& m_steps;
  RecentOpening m_recentOpening;
};

// Makes the one window, or destroys it; g_pContextMenu follows. The steps are needed for making
// only and must outlive the window.
void InitContextWindow(bool create, StartupSteps* steps);
CContextMenuWnd* TheContextWindow();  // null when there is none
