// CAdUiPaletteSet: a dockable palette with a title. While it floats and the pointer is elsewhere,
// it can roll up to its caption. Included by adui.h.
//
// Not offered: pages with tabs, opacity, snapping to other palettes, a title bar on another
// side. Their virtual functions exist because palettes override them; they are called only
// where their comments say so.
#pragma once

#include "aduidock.h"

class CMiniDockFrameWnd;

// Palette style bits of Create.
#define PSS_PROPERTIES_MENU 0x0002
#define PSS_AUTO_ROLLUP 0x0004
#define PSS_EDIT_NAME 0x0008
#define PSS_SNAP 0x0010
#define PSS_CLOSE_BUTTON 0x0020

class CAdUiPaletteSet : public CAdUiDockControlBar {
  DECLARE_DYNAMIC(CAdUiPaletteSet)
 public:
  CAdUiPaletteSet();
  ~CAdUiPaletteSet() override;

  virtual BOOL Create(LPCTSTR lpszTitle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                      DWORD dwPaletteSetStyle = 0);
  using CAdUiDockControlBar::Create;

  BOOL SetAutoRollup(BOOL bRollup);  // returns the previous setting
  BOOL GetAutoRollup() const { return m_autoRollup; }
  void RollUp();
  void RollOut();
  BOOL GetRolledUp() const { return m_rolledUp; }
  DWORD GetPaletteSetStyle() const { return m_paletteStyle; }
  CString GetName() const;
  BOOL SetName(LPCTSTR lpszName);

  BOOL PreTranslateMessage(MSG* pMsg) override;

  // --- overridden by palette sets
  virtual void GetMinimumSize(CSize& size);
  virtual void GetMaximumSize(CSize& size) { size = CSize(0x7FFF, 0x7FFF); }
  virtual int GetBottomReservedHeight() { return 0; }
  virtual void OnRolledUp() {}   // called after rolling up
  virtual void OnRolledOut() {}  // called after rolling out
  virtual void OnTitleBarLocationChanging() {}
  virtual void OnTitleBarLocationChanged() {}
  virtual void OnTabDrag(int, CPoint) {}
  // A right click on the palette (screen point; -1,-1 from the keyboard). This one shows the host's
  // palette menu with the items of AddCustomMenuItems.
  virtual void OnContextMenu(CWnd* pWnd, CPoint point);

 protected:
  CSize FloatingMinimum() override;        // of a rolled-up frame: none
  CRect FrameToRemember() const override;  // the rolled-out size
  afx_msg void OnDestroy();
  afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
  DECLARE_MESSAGE_MAP()

 private:
  static void CALLBACK WatchPointer(HWND window, UINT message, UINT_PTR id, DWORD now);
  void Watch();
  void SetFrameHeight(int height);
  CMiniDockFrameWnd* FloatingFrame() const;

  DWORD m_paletteStyle = 0;
  BOOL m_autoRollup = FALSE;
  BOOL m_rolledUp = FALSE;
  int m_ticksOutside = 0;
  int m_unrolledHeight = 0;  // of the frame's window before it was rolled up
};
