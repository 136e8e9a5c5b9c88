// The context window: a child of the host frame, one pixel in size, that owns the one loaded menu
// and every pop-up of the system, carries the timers which finish the start-up, and opens drawings
// that were asked for from outside. Where to look: context_menu_wnd.cpp coming up, timers, opening;
// context_menu_popups.cpp pop-ups and their messages. Made and ended by InitContextWindow alone.
#pragma once

#include "afxwin.h"
#include "frame/containers/tdptrlist.h"
#include "menu/menu_system.h"
#include "popup/open_timers.h"
#include "popup/win/popup_build.h"
#include "ground/host_lisp.h"

// What the window's readiness timer asks of the module. The frame implements it.
class StartupSteps {
 public:
  virtual ~StartupSteps() = default;
  virtual void OnMenuReadiness() = 0;
};

class CContextMenuWnd : public CWnd, private PopupOwner {
 public:
  static constexpr int kReadinessTimer = 20;
  static constexpr UINT kControlId = 310;
  static constexpr UINT kOpenRequestMessage = 0x500;

  explicit CContextMenuWnd(StartupSteps& steps) : m_steps(steps) {}
  ~CContextMenuWnd() override;

  // Child of the frame; starts the readiness timer.
  BOOL CreateIn(CWnd* frame);
  void StopReadinessTimer() { KillTimer(kReadinessTimer); }

  // Starts reopening what stands in m_openQueue; nothing with an empty queue.
  void StartOpening();

  // The menu for what is selected, at a screen point; `force` shows one also with nothing selected.
  // What TrackPopupMenu gives, or 0 when no menu is shown.
  int ShowContextMenu(CPoint point, int force);
  // A given block, which has to live until the next pop-up. `flags` go to the system beside ours.
  int ShowMenuAt(TMenuBar& bar, CPoint point, UINT flags);

  // Ends the pop-up of the last time. Not while one is on the screen: it does nothing then.
  void ResetPopups();
  int IsOurMenu(const CMenu* menu) const;
  // Lines that a pop-up may show are going, because another menu was loaded or the screen menu
  // goes: rows that are left lose their lines, and what shows closes.
  void ForgetLines();

  BOOL PreTranslateMessage(MSG* message) override;

  TDPtrList<CBitmapMenu> m_popups;  // every menu and sub-menu of the present pop-up
  TMenuSystem m_menuSystem;
  TMenuBar* m_pBar = nullptr;      // of the present pop-up; not owned
  CBitmapMenu* m_pMenu = nullptr;  // its top menu; not owned
  TDPtrList<CString> m_openQueue;  // files waiting to be opened
  int m_bStatusText = 0;           // the status bar shows a row's help text

  TMenuBar* m_pToolBar = nullptr;  // the menu's ToolBar block; stays in m_menuSystem

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnTimer(UINT_PTR id);
  afx_msg void OnMeasureItem(int control, LPMEASUREITEMSTRUCT item);
  afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu);
  afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
  afx_msg void OnExitMenuLoop(BOOL isShortcut);
  DECLARE_MESSAGE_MAP()

 private:
  class Showing;
  CBitmapMenu* AddPopup() override;
  int FindBlock(bool force);
  int Track(TMenuBar& bar, int firstId, CPoint point, UINT flags);

  StartupSteps& m_steps;
  RecentOpening m_recentOpening;
  qvx::HostLisp m_lisp;
  bool m_isShowing = false;  // from the first question to a LISP function until the menu closes
  int m_linesForgotten = 0;
};

// Makes the one window, or destroys it; g_pContextMenu follows. The steps are needed for making
// only and must outlive the window.
void InitContextWindow(bool create, StartupSteps* steps);
CContextMenuWnd* TheContextWindow();  // null when there is none

// 0 without a context window.
int ShowContextMenu(CPoint point, int force);
int ShowBlockMenu(TMenuBar& block, int x, int y, UINT flags);
