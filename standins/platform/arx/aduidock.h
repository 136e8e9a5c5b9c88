// CAdUiDockControlBar: a palette window that docks and floats, has a caption strip while docked,
// and whose place the host remembers under its tool identifier. Included by adui.h.
//
// The caption strip is drawn inside the client area; GetUsedRect is what it leaves to the content.
#pragma once

#ifndef __AFXEXT_H__
#error "include afxwin.h and afxext.h first"
#endif

class CAdUiDockControlBar : public CControlBar {
  DECLARE_DYNAMIC(CAdUiDockControlBar)
 public:
  explicit CAdUiDockControlBar(int nStyle = 0);
  ~CAdUiDockControlBar() override;

  virtual BOOL Create(LPCTSTR lpszTitle, CWnd* pParentWnd, UINT nID, DWORD dwStyle,
                      const RECT& rect);
  using CWnd::Create;

  void SetToolID(const CLSID* pToolId);
  const CLSID* GetToolID() const { return &m_toolId; }
  // Where the host saw this tool last: if it floated, it floats there again. Otherwise the caller's
  // dock bar counts, because palettes keep their side themselves; a bar that is docked stays.
  void RestoreControlBar(UINT nPrimaryDockBarID = AFX_IDW_DOCKBAR_LEFT,
                         const CRect* pRect = nullptr);
  // Docks the bar, or moves it, or gives it another width: the screen rectangle is how it shall
  // look.
  void DockControlBar(UINT nDockBarID, const CRect* pRect);
  void DockControlBar(UINT nDockBarID, const CRect& rect) { DockControlBar(nDockBarID, &rect); }
  void EnableDocking(DWORD dwDockStyle);
  BOOL IsFloating() const { return CControlBar::IsFloating(); }
  // Floating: the whole client area. Docked: without the caption strip and the line at the inner
  // edge.
  void GetUsedRect(CRect& rect) const;

  CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

  // --- what a palette overrides
  virtual void SizeChanged(CRect* pRect, BOOL bFloating, int nFlags);
  // The close box, or the program. Here it hides the bar at the next idle time and answers true.
  // Until then the window still has its WS_VISIBLE bit, so a palette destroyed right after it keeps
  // what it saves about being shown.
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
  virtual CRect FrameToRemember() const;  // of a floating bar, as it shall come back
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
  CSize m_docked;  // width while docked left or right, height while top or bottom; the
                   // creation rectangle counts, one without width or height means "as last"
  CFont m_captionFont;
  bool m_closeHot = false, m_closePressed = false, m_leaveAsked = false;
};
