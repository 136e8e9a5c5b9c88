// The palette of the screen menu: a dockable window of the host that contains the tree of groups.
// Created empty; the tree is created when a menu is attached and lives as long as the palette.
// Files: screen_menu.cpp menu, layout, closing; screen_menu_setup.cpp creation and destruction;
// screen_menu_dispatch.cpp clicks and the waiting command; screen_menu_popup.cpp right clicks;
// screen_menu_drag.cpp dragging the edge.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "afxwin.h"
#include "afxext.h"

#include "adui.h"
#include "ground/win/guarded_window.h"
#include "ground/win/owned_handle.h"
#include "menu/menu_in_force.h"
#include "screenmenu/dispatch_rules.h"
#include "screenmenu/edge_drag.h"
#include "screenmenu/menu_colors.h"
#include "screenmenu/win/menu_group.h"
#include "screenmenu/screen_menu_bar.h"
#include "screenmenu/screen_menu_door.h"

class CScreenMenu : public qvx::GuardedWindow<CAdUiPaletteSet>, private GroupOwner {
  DECLARE_DYNAMIC(CScreenMenu)
 public:
  CScreenMenu();
  ~CScreenMenu() override;

  // Takes ownership of the bar as the root of the tree, and builds the tree.
  void TakeScreenBar(std::unique_ptr<TMenuBar> bar, const wchar_t* title);
  void EnsureRootGroup();

  // To be called after every load of a menu, whatever it contains: the switches of the previous one
  // are destroyed.
  void MenuWasLoaded();

  int StepBack();  // 1 if it stepped back, 0 when no line was entered
  TMenuBar* RootBar() const { return m_bar.RootBar(); }
  CMenuGroup* RootGroup() const { return m_pRootGroup.get(); }

  // For a line of a pop-up that this palette built: the command without its leading "*".
  void TailCommand(const wchar_t* text);

  // Ends the hover state of the row under the pointer and releases its mouse capture.
  void DropHover();

  // Suppresses the hint of the next close.
  void CloseSilently();
  bool AutoDeletes() const { return m_bAutoDelete != FALSE; }

  BOOL PreTranslateMessage(MSG* message) override;
  BOOL DestroyWindow() override;
  CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
  bool OnClosing() override;
  void GetFloatingMinSize(long* width, long* height) override;
  void OnContextMenu(CWnd* window, CPoint point) override;

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnWindowPosChanged(WINDOWPOS* position);
  afx_msg void OnTimer(UINT_PTR timer);
  afx_msg void OnDestroy();
  afx_msg void OnSysColorChange();
  afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
  DECLARE_MESSAGE_MAP()

 private:
  qvx::LineSources Lines() override { return MenuLines(); }
  HBITMAP Arrow(int depth, bool open) override;
  HBITMAP Icon(const wchar_t* name) override;
  void ArmCommand(const TWCString& command) override;
  bool IsHostBusy() override;
  void ReportBusy() override;
  void SwitchWasFlipped() override;
  void ShowHeaderMenu(TMenuBar& bar, const CRect& button, CPoint at) override;
  void ShowLineMenu(TMenuItem& line, CPoint at) override;
  void RestoreStatusBar() override;

  void FitGroup();
  CSMenuItem* FindDirectItem(UINT ctrlId) const;
  void OpenDirectly(TMenuItem& line);
  void FlipDirectly(CSMenuItem& item);
  void ShowTail(TMenuItem* clicked, bool withHelp, CPoint at);
  void ShowHelpFor(const TMenuItem& line);

  static LRESULT CALLBACK DockBarProc(HWND bar, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnDockBarMessage(HWND bar, UINT message, WPARAM wParam, LPARAM lParam);
  void TakeDockBar(HWND bar);
  void RestoreDockBar();
  void FollowDockBar();  // replaces or restores the window procedure of its dock bar
  bool StandsAlone(CDockBar& bar);
  qvx::DockGeometry MeasureDock() const;
  SIZE LeastSize();
  void TrackBegin(int code);
  void TrackMove(CPoint point);
  void TrackEnd();
  void TrackCancel();  // ends a drag when the palette is destroyed; erases the tracker
  void DrawTracker();

  qvx::PendingCommand m_pending;                      // waits for the timer
  TDPtrList<CSMenuItem> m_directItems;                // direct buttons; none is ever added
  TMenuItem m_rootItem;                               // owns the bar of the screen menu
  std::vector<std::unique_ptr<TMenuBar>> m_pastBars;  // replaced, but rows still show their lines
  TScreenMenuBar m_bar;
  std::unique_ptr<TMenuBar> m_pTailMenu;  // the last pop-up of a right click, alive until the next
  TMenuItem* m_pClickedItem = nullptr;    // the leaf last right-clicked, not owned
  std::unique_ptr<CMenuGroup> m_pRootGroup;  // null until the first menu is attached
  int m_bShownAtEnd = 0;                     // visible when DestroyWindow was called
  int m_bCloseHint = 1;                      // print the hot key on closing
  int m_bTracking = 0;                       // an edge drag is running
  CRect m_rcTracker;                         // the drag bar, in the dock bar's client coordinates
  HWND m_hDockBar = nullptr;                 // the dock bar whose window procedure is replaced
  WNDPROC m_pfnDockBarProc = nullptr;        // its original procedure

  qvx::OwnedBitmap m_arrows[qvx::kArrowKinds][2];    // folded, open; loaded at first use
  std::map<std::wstring, qvx::OwnedBitmap> m_icons;  // by name, null for one that did not load
};

extern CScreenMenu* g_pScreenMenu;  // null when there is no palette

extern "C" {
__declspec(dllexport) int ShowScreenMenu(int show);
__declspec(dllexport) int IsScreenMenuVisible();
__declspec(dllexport) int GetScreenMenuWidth();
}
