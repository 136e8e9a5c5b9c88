// CAdUiDockControlBar: a palette window that docks and floats and has a caption strip while docked.
// The host saves its position under its tool identifier. Included by adui.h.
//
// The caption strip is drawn inside the client area; GetUsedRect returns the rest, for the content.
#pragma once

#ifndef __AFXEXT_H__
#error "include afxwin.h and afxext.h first"
#endif

class CAdUiDockControlBar : public CControlBar {
  DECLARE_DYNAMIC(CAdUiDockControlBar)
 public:
  explicit CAdUiDockControlBar(int nStyle = 0);
  ~CAdUiDockControlBar() override;

  BOOL PreCreateWindow(CREATESTRUCT& cs) override;  // keeps the borders of its side
  virtual BOOL Create(LPCTSTR lpszTitle, CWnd* pParentWnd, UINT nID, DWORD dwStyle,
                      const RECT& rect);
  using CWnd::Create;

  void SetToolID(const CLSID* pToolId);
  const CLSID* GetToolID() const { return &m_toolId; }
  // Restores the saved position of the tool if it floated. Otherwise the caller's dock bar is used,
  // because palettes save their side themselves; a bar that is docked already stays.
  void RestoreControlBar(UINT nPrimaryDockBarID = AFX_IDW_DOCKBAR_LEFT,
                         const CRect* pRect = nullptr);
  // Docks the bar, or moves or resizes it to the screen rectangle.
  void DockControlBar(UINT nDockBarID, const CRect* pRect);
  void DockControlBar(UINT nDockBarID, const CRect& rect) { DockControlBar(nDockBarID, &rect); }
  void EnableDocking(DWORD dwDockStyle);
  BOOL IsFloating() const { return CControlBar::IsFloating(); }
  // Floating: the whole client area. Docked: without the caption strip and
  // the line at the inner edge.
  void GetUsedRect(CRect& rect) const;

  CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

  // --- overridden by palettes
  virtual void SizeChanged(CRect* pRect, BOOL bFloating, int nFlags);
  // Called for the close box and by the program. This one hides the bar at the next idle time and
  // returns true. Until then the window keeps its WS_VISIBLE bit, so a palette destroyed right
  // after it saves that it was shown.
  virtual bool OnClosing();
  virtual void GetFloatingMinSize(long* pnMinWidth, long* pnMinHeight);
  virtual BOOL AddCustomMenuItems(LPARAM hMenu);
  virtual BOOL CreateControlBar(LPCREATESTRUCT) { return TRUE; }
  virtual void PaintControlBar(CDC*) {}
  virtual BOOL CanFrameworkTakeFocus() { return TRUE; }

 protected:
  void DoPaint(CDC* pDC) override;
  BOOL FillsDockRow() const override { return TRUE; }
  void SetDockedSize(CSize size) override;
  CSize FloatingMinimum() override;
  BOOL OnCloseFloating() override;
  virtual CRect FrameToRemember() const;  // of a floating bar, to be saved
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  afx_msg int OnCreate(LPCREATESTRUCT lpcs);
  afx_msg void OnDestroy();
  afx_msg BOOL OnEraseBkgnd(CDC* pDC);
  afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
  afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
  afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
  afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
  afx_msg void OnMouseMove(UINT nFlags, CPoint point);
  afx_msg void OnMouseLeave();
  afx_msg void OnCaptureChanged(CWnd* pWnd);
  afx_msg void OnSysColorChange();
  afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  struct PaletteParts Parts() const;
  int CaptionHeight() const;
  void DrawCaption(CDC& dc, const PaletteParts& parts) const;
  void ShowCloseBox(bool hot, bool pressed);
  void SaveState() const;

  CLSID m_toolId{};
  // Width while docked left or right, height while docked at top or bottom. Set by the creation
  // rectangle; one without width or height keeps the saved size.
  CSize m_docked;
  CFont m_captionFont;
  bool m_closeHot = false, m_closePressed = false, m_leaveAsked = false;
};
