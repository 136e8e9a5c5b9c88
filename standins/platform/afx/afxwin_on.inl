// The handlers of CWnd, one for each message of the maps, for calls by derived classes. Each runs
// the default handling. Included inside class CWnd.
  afx_msg int OnCreate(LPCREATESTRUCT) { return int(Default()); }
  afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return BOOL(Default()); }
  afx_msg void OnDestroy() { Default(); }
  afx_msg void OnNcDestroy();
  afx_msg void OnClose() { Default(); }
  afx_msg void OnPaint() { Default(); }
  afx_msg void OnNcPaint() { Default(); }
  afx_msg BOOL OnEraseBkgnd(CDC*) { return BOOL(Default()); }
  afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
  afx_msg void OnSize(UINT, int, int) { Default(); }
  afx_msg void OnMove(int, int) { Default(); }
  afx_msg void OnSizing(UINT, LPRECT) { Default(); }
  afx_msg void OnMoving(UINT, LPRECT) { Default(); }
  afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
  afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
  afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
  afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
  afx_msg void OnEnable(BOOL) { Default(); }
  afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
  afx_msg void OnMDIActivate(BOOL, CWnd*, CWnd*) { Default(); }
  afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return int(Default()); }
  afx_msg void OnSetFocus(CWnd*) { Default(); }
  afx_msg void OnKillFocus(CWnd*) { Default(); }
  afx_msg void OnCaptureChanged(CWnd*) { Default(); }
  afx_msg void OnCancelMode() { Default(); }
  afx_msg void OnSysColorChange() { Default(); }
  afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
  afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
  afx_msg void OnTimer(UINT_PTR) { Default(); }
  afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
  afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
  afx_msg UINT OnGetDlgCode() { return UINT(Default()); }
  afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
  afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
  afx_msg void OnMouseLeave() { Default(); }
  afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return BOOL(Default()); }
  afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
  afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return BOOL(Default()); }
  afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
  afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
  afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
  afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
  afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
  afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
  afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
  afx_msg BOOL OnNcActivate(BOOL) { return BOOL(Default()); }
  afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
  afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
  afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
  afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
  // Rows are measured and drawn by their menu object, controls by themselves.
  afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
  afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
  afx_msg void OnInitMenu(CMenu*) { Default(); }
  afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
  afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
  afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
  afx_msg void OnEnterMenuLoop(BOOL) { Default(); }
  afx_msg void OnExitMenuLoop(BOOL) { Default(); }
  afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
