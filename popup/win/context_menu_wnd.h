// The context window: a child of the host frame, one pixel in size, that owns the menu in force and
// the pop-ups, and has the timers of the start-up. Other rooms use menu/menu_in_force.h and
// popup/popup_door.h. Files: context_menu_wnd.cpp creation, timers, the menu;
// context_menu_popups.cpp pop-ups and their messages; drawing_opening.h opening drawings. Only
// InitContextWindow creates and destroys it.
#pragma once

#include "afxwin.h"
#include "frame/containers/tdptrlist.h"
#include "ground/host_lisp.h"
#include "ground/win/guarded_window.h"
#include "menu/menu_in_force.h"
#include "popup/popup_door.h"
#include "popup/win/drawing_opening.h"
#include "popup/win/popup_build.h"

class CContextMenuWnd : public qvx::GuardedWindow<CWnd>,
                        private PopupOwner,
                        private MenuInForce,
                        private RecentSources {
 public:
  static constexpr int kReadinessTimer = 20;
  static constexpr UINT kControlId = 310;
  static constexpr UINT kOpenRequestMessage = 0x500;

  // Registers itself as the menu in force. `onReadiness` is called by the readiness timer.
  explicit CContextMenuWnd(void (*onReadiness)());
  ~CContextMenuWnd() override;

  // Child of the frame; starts the readiness timer.
  BOOL CreateIn(CWnd* frame);
  void StopReadinessTimer() { KillTimer(kReadinessTimer); }
  void ReopenDrawings(const TWCStringList& files);

  // Shows the menu for the selection at a screen point; with `force` also when nothing is selected.
  // Returns the result of TrackPopupMenu, or 0 when no menu is shown.
  int ShowContextMenu(CPoint point, int force);
  // Lets go of the block shown last. False while one is shown or without a drawing view.
  bool PrepareMenu();
  // Shows a block, which must live until the next pop-up. `flags` are added to TPM_RIGHTBUTTON.
  int ShowMenuAt(TMenuBar& bar, CPoint point, UINT flags);

  // Destroys the last pop-up. Does nothing while one is shown.
  void ResetPopups();
  int IsOurMenu(const CMenu* menu) const;

  const TMenuBar* Bar() const { return m_pBar; }  // of the current pop-up; null when none
  const CBitmapMenu* Menu() const { return m_pMenu; }
  const TDPtrList<CBitmapMenu>& Popups() const { return m_popups; }
  int IsHelpShown() const { return m_bStatusText; }

  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnTimer(UINT_PTR id);
  afx_msg void OnMeasureItem(int control, LPMEASUREITEMSTRUCT item);
  afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu);
  afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
  afx_msg void OnExitMenuLoop(BOOL isShortcut);
  DECLARE_MESSAGE_MAP()

 private:
  class ShowingScope;

  // MenuInForce.
  TMenuSystem& System() override { return m_menuSystem; }
  qvx::LineSources Lines() override;
  void ForgetLines() override;
  void SetToolBar(TMenuBar* bar) override { m_pToolBar = bar; }

  // RecentSources: sources of label and icon of a recent command.
  bool IsRunMode() override;
  TMenuBar* ScreenRoot() override;
  TMenuItem* FindMenuLine(const wchar_t* command) override {
    return m_menuSystem.FindItemByCommand(command);
  }

  void OnPreviewTimer();
  CBitmapMenu* AddPopup() override;
  int FindBlock(bool force);
  int Track(TMenuBar& bar, int firstId, CPoint point, UINT flags);

  TDPtrList<CBitmapMenu> m_popups;  // every menu and sub-menu of the current pop-up
  TMenuSystem m_menuSystem;
  TMenuBar* m_pBar = nullptr;      // of the current pop-up; not owned
  CBitmapMenu* m_pMenu = nullptr;  // its top menu; not owned
  TDPtrList<CString> m_openQueue;  // files waiting to be opened
  int m_bStatusText = 0;           // the status bar shows a row's help

  TMenuBar* m_pToolBar = nullptr;  // the menu's ToolBar block; stays in m_menuSystem
  void (*m_onReadiness)();
  DrawingOpening m_opening{*this, m_openQueue};
  qvx::HostLisp m_lisp;
  qvx::MenuLife m_menuLife;
  bool m_isShowing = false;  // from the first call of a LISP function until the menu closes
};

CContextMenuWnd* TheContextWindow();  // null when there is none
