// Frame windows: CFrameWnd with its layout pass and its list of control bars, the MDI frame and
// child, and the small frame. Included by afxwin.h; do not include it directly.
//
// Not offered: documents and views, print preview, context help, automatic greying of menu rows.
#pragma once

class CDockBar;
class CControlBar;

#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L

class CFrameWnd : public CWnd {
  DECLARE_DYNCREATE(CFrameWnd)
 public:
  static const CRect rectDefault;  // size and position chosen by Windows

  CFrameWnd() = default;
  ~CFrameWnd() override;

  BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
              const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr,
              LPCTSTR lpszMenuName = nullptr, DWORD dwExStyle = 0, void* pContext = nullptr);
  using CWnd::Create;
  // Menu, accelerators, icon and title (string) with one resource number.
  virtual BOOL LoadFrame(UINT nIDResource,
                         DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                         CWnd* pParentWnd = nullptr, void* pContext = nullptr);
  BOOL LoadAccelTable(LPCTSTR lpszResourceName);

  // --- active parts
  virtual CFrameWnd* GetActiveFrame() { return this; }  // the active child of an MDI frame
  virtual void ActivateFrame(int nCmdShow = -1);
  CWnd* GetActiveView() const { return m_pViewActive; }
  void SetActiveView(CWnd* pView, BOOL = TRUE) { m_pViewActive = pView; }
  void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
  CString GetTitle() const { return m_strTitle; }
  virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
  void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);

  // --- message line: shown by the bar with the identifier AFX_IDW_STATUS_BAR
  void SetMessageText(LPCTSTR lpszText);
  void SetMessageText(UINT nID);
  virtual CWnd* GetMessageBar();
  virtual void GetMessageString(UINT nID, CString& rMessage) const;

  // --- layout. Bars with an alignment, dock bars among them, take their strips in Z order; the
  // child AFX_IDW_PANE_FIRST gets the rest.
  virtual void RecalcLayout(BOOL bNotify = TRUE);
  void DelayRecalcLayout(BOOL bNotify = TRUE);
  enum IdleFlags { idleMenu = 1, idleTitle = 2, idleNotify = 4, idleLayout = 8 };

  // --- control bars
  void EnableDocking(DWORD dwDockStyle);  // creates the dock bars of these sides
  // Identifier 0 uses the side of the bar's own style. The rectangle, in screen coordinates, is the
  // position in the dock bar; without it the bar gets a row of its own at the inner end.
  void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
  void DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect = nullptr);
  CFrameWnd* FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = 0x2000L);
  void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
  CControlBar* GetControlBar(UINT nID);
  void AddControlBar(CControlBar* pBar);
  void RemoveControlBar(CControlBar* pBar);
  CDockBar* GetDockBar(UINT nDockBarID) const;
  // The sides (CBRS_ALIGN_...) on which the bar would dock if dropped at the screen point; 0: none.
  DWORD CanDock(CPoint ptScreen, DWORD dwDockStyle, CDockBar** ppDockBar = nullptr);
  CDockBar* FirstDockBar(
      DWORD dwDockStyle) const;  // of the given sides, in the order left to bottom
  CRect DockArea() const;        // screen rectangle of the dock bars and the area between them
  virtual void DestroyDockBars();
  CPtrList m_listControlBars;  // every CControlBar docked here now or earlier, and the dock bars

  // --- window
  BOOL PreCreateWindow(CREATESTRUCT& cs) override;
  BOOL PreTranslateMessage(MSG* pMsg) override;
  BOOL IsFrameWnd() const override { return TRUE; }
  void PostNcDestroy() override;  // deletes the object: create frames with new
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
  HACCEL GetDefaultAccelerator() const { return m_hAccelTable; }

  BOOL m_bAutoMenuEnable = TRUE;  // ignored: a frame greys no rows itself
  HMENU m_hMenuDefault = nullptr;
  HACCEL m_hAccelTable = nullptr;  // freed by Windows with its module
  CString m_strTitle;
  UINT m_nIDTracking = 0, m_nIDLastMessage = 0;
  CWnd* m_pViewActive = nullptr;
  CRuntimeClass* m_pFloatingFrameClass = nullptr;
  int m_nShowDelay = -1;  // SW_ code to apply at the next idle time; -1: none
  UINT m_nIdleFlags = 0;
  CRect m_rectBorder;
  BOOL m_bInRecalcLayout = FALSE;

 protected:
  virtual BOOL OnCreateClient(LPCREATESTRUCT, void*) { return TRUE; }
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  afx_msg int OnCreate(LPCREATESTRUCT lpcs);
  afx_msg void OnDestroy();
  afx_msg void OnClose();
  afx_msg void OnSize(UINT nType, int cx, int cy);
  afx_msg BOOL OnEraseBkgnd(CDC* pDC);
  afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
  afx_msg BOOL OnNcActivate(BOOL bActive);
  afx_msg void OnSysColorChange();
  afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  CDockBar* MakeDockBar(DWORD side, UINT id);
  class CMiniDockFrameWnd* CreateFloatingFrame(DWORD dwStyle);
  void ShowFloatingFrame(CControlBar* pBar, BOOL bShow, BOOL bDelay);
  void ShowFloatingFrames(BOOL bShow);
};

class CMDIChildWnd;

class CMDIFrameWnd : public CFrameWnd {
  DECLARE_DYNCREATE(CMDIFrameWnd)
 public:
  HWND m_hWndMDIClient = nullptr;

  CMDIFrameWnd() = default;

  void MDIActivate(CWnd* pWndActivate);
  CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
  void MDIIconArrange() { ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }
  void MDIMaximize(CWnd* pWnd);
  void MDIRestore(CWnd* pWnd);
  void MDINext() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0); }
  void MDIPrev() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1); }
  void MDICascade(int nType = 0) { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, nType, 0); }
  void MDITile(int nType = MDITILE_HORIZONTAL) {
    ::SendMessage(m_hWndMDIClient, WM_MDITILE, nType, 0);
  }
  CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);

  // The MDI area; Windows adds the children's rows to the window menu. Called when the frame is
  // created, unless OnCreateClient is overridden.
  virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
  virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);
  CFrameWnd* GetActiveFrame() override;
  void OnUpdateFrameTitle(BOOL bAddToTitle) override;
  BOOL PreCreateWindow(CREATESTRUCT& cs) override;
  BOOL PreTranslateMessage(MSG* pMsg) override;
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  BOOL OnCreateClient(LPCREATESTRUCT lpcs, void* pContext) override;
  LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) override;
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnDestroy();
  afx_msg void OnSize(UINT nType, int cx, int cy);
  afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
  DECLARE_MESSAGE_MAP()
};

class CMDIChildWnd : public CFrameWnd {
  DECLARE_DYNCREATE(CMDIChildWnd)
 public:
  CMDIChildWnd() = default;

  virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                      DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                      const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = nullptr,
                      void* pContext = nullptr);
  void MDIDestroy();
  void MDIActivate();
  void MDIMaximize();
  void MDIRestore();
  CMDIFrameWnd* GetMDIFrame() const;

  BOOL DestroyWindow() override;
  BOOL PreCreateWindow(CREATESTRUCT& cs) override;
  BOOL PreTranslateMessage(MSG* pMsg) override;
  void ActivateFrame(int nCmdShow = -1) override;
  CWnd* GetMessageBar() override;
  void OnUpdateFrameTitle(BOOL bAddToTitle) override;

 protected:
  LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam) override;
  afx_msg void OnSize(UINT nType, int cx, int cy);
  afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
  DECLARE_MESSAGE_MAP()
};

// Styles of a mini frame.
#define MFS_SYNCACTIVE 0x00000100L
#define MFS_4THICKFRAME 0x00000200L
#define MFS_THICKFRAME 0x00000400L
#define MFS_MOVEFRAME 0x00000800L
#define MFS_BLOCKSYSMENU 0x00001000L

// A frame with a small caption that floats above its owner and is not on the task bar.
class CMiniFrameWnd : public CFrameWnd {
  DECLARE_DYNCREATE(CMiniFrameWnd)
 public:
  CMiniFrameWnd() = default;
  virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, UINT nID = 0);
  BOOL PreCreateWindow(CREATESTRUCT& cs) override;

 protected:
  DECLARE_MESSAGE_MAP()
};

#include "afxext.h"  // CControlBar
