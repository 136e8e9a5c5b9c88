// CWnd: an object for a window handle. Messages go through AfxWndProc to WindowProc, which searches
// the message map (OnWndMsg) and otherwise calls the procedure that the window had before it was
// attached (DefWindowProc). Included by afxwin.h.
//
// The destructor destroys a window that still exists, except for a temporary object, which
// FromHandle creates for a window without one. GetSafeHwnd must not be called on a null pointer.
#pragma once

// m_nFlags.
#define WF_TOOLTIPS 0x0001  // EnableToolTips is on
#define WF_TEMPHIDE 0x0002
#define WF_STAYDISABLED 0x0004   // re-enabled together with its frame, not before
#define WF_MODALLOOP 0x0008      // inside RunModalLoop
#define WF_CONTINUEMODAL 0x0010  // the modal loop continues
#define WF_STAYACTIVE 0x0020     // title bar looks active although another window is
#define WF_KEEPMINIACTIVE 0x0040

// RunModalLoop.
#define MLF_NOIDLEMSG 0x0001   // no WM_ENTERIDLE for the parent
#define MLF_NOKICKIDLE 0x0002  // no WM_KICKIDLE for the window
#define MLF_SHOWONIDLE 0x0004  // show the window at the first idle time

// OnToolHitTest: show the tip while the pointer is on the tool.
#define TTF_NOTBUTTON 0x80000000L
#define TTF_ALWAYSTIP 0x40000000L

class CWnd : public CCmdTarget {
  DECLARE_DYNCREATE(CWnd)
 public:
  HWND m_hWnd = nullptr;

  CWnd() = default;
  ~CWnd() override;
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;

  // --- handle and object
  HWND GetSafeHwnd() const { return m_hWnd; }
  operator HWND() const { return m_hWnd; }
  BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
  static CWnd* FromHandle(HWND hWnd);           // creates a temporary one if there is none
  static CWnd* FromHandlePermanent(HWND hWnd);  // null if there is none
  static void DeleteTempMap();
  BOOL Attach(HWND hWndNew);
  HWND Detach();
  BOOL SubclassWindow(HWND hWnd);
  BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
  HWND UnsubclassWindow();
  virtual void PreSubclassWindow() {}

  // --- creation and end
  virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                      const RECT& rect, CWnd* pParentWnd, UINT nID, void* pContext = nullptr);
  BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                LPVOID lpParam = nullptr);
  virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                        LPVOID lpParam = nullptr);
  virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
  virtual BOOL DestroyWindow();
  virtual void PostNcDestroy() {}

  // --- style, text, identity
  DWORD GetStyle() const { return DWORD(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }
  DWORD GetExStyle() const { return DWORD(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE)); }
  static BOOL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
  BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd,
                   UINT nFlags = 0);  // nFlags: SWP_ flags of a following SetWindowPos
  BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
  void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
  int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
  }
  void GetWindowText(CString& rString) const;
  int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
  void SetFont(CFont* pFont, BOOL bRedraw = TRUE) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr), bRedraw);
  }
  CFont* GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
  }
  HICON SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
  }
  HICON GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon));
  }
  CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
  BOOL SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu ? pMenu->m_hMenu : nullptr); }
  void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
  int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
  int SetDlgCtrlID(int nID) { return int(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }

  // --- relations
  CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
  CWnd* SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, pWndNewParent ? pWndNewParent->m_hWnd : nullptr));
  }
  // The window that gets the notifications: that of SetOwner, else the parent.
  CWnd* GetOwner() const { return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent(); }
  void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd ? pOwnerWnd->m_hWnd : nullptr; }
  CWnd* GetParentOwner() const;
  CFrameWnd* GetParentFrame() const;
  CFrameWnd* GetTopLevelFrame() const;
  CWnd* GetTopLevelParent() const;
  CWnd* GetTopLevelOwner() const;
  CFrameWnd* EnsureParentFrame();
  BOOL IsTopParentActive() const;
  CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
  CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return GetWindow(nFlag); }
  CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
  CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
  BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->m_hWnd); }
  CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
  void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
  CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const {
    return GetDescendantWindow(m_hWnd, nID, bOnlyPerm);
  }
  static CWnd* GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm);
  CWnd* ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
  }
  static CWnd* WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
  static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
  }
  static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
  static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
  static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
  static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
  static CWnd* GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
  static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pTopLevel = nullptr);

  // --- place and size
  void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
  }
  void MoveWindow(LPCRECT r, BOOL bRepaint = TRUE) {
    MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, bRepaint);
  }
  BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr, x, y, cx, cy,
                          nFlags);
  }
  // Positions in the Z order for SetWindowPos; not windows.
  static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;
  BOOL BringWindowToTop() { return ::BringWindowToTop(m_hWnd); }
  void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
  void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
  BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
  BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
  enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
  virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
  void CenterWindow(CWnd* pAlternateOwner = nullptr);
  BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
  BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
  void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
  void ClientToScreen(LPRECT lpRect) const;
  void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
  void ScreenToClient(LPRECT lpRect) const;
  void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, pwndTo ? pwndTo->m_hWnd : nullptr, lpPoint, nCount);
  }
  void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    MapWindowPoints(pwndTo, reinterpret_cast<LPPOINT>(lpRect), 2);
  }
  // Each child in the range of identifiers takes its strip and the last one gets the rest: whole
  // (reposDefault), less the margins in lpRectParam (reposExtra); or nothing is moved and
  // lpRectParam receives the rest (reposQuery).
  enum RepositionFlags {
    reposDefault = 0,
    reposQuery = 1,
    reposExtra = 2,
    reposNoPosLeftOver = 0x8000
  };
  void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                      LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr,
                      BOOL bStretch = TRUE);

  // --- state
  BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
  BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
  BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
  BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
  CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
  CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
  CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
  BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
  UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) const {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
  }
  BOOL KillTimer(UINT_PTR nIDEvent) const { return ::KillTimer(m_hWnd, nIDEvent); }
  void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }

  // --- caret
  void CreateSolidCaret(int nWidth, int nHeight) {
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
  }
  static void SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
  void HideCaret() { ::HideCaret(m_hWnd); }
  void ShowCaret() { ::ShowCaret(m_hWnd); }

  // --- painting
  CDC* BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
  void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
  CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
  CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
  CDC* GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, prgnClip ? HRGN(*prgnClip) : nullptr, flags));
  }
  int ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->m_hDC); }
  void UpdateWindow() { ::UpdateWindow(m_hWnd); }
  void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
  void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
  void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
  }
  void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE) {
    ::InvalidateRgn(m_hWnd, pRgn ? HRGN(*pRgn) : nullptr, bErase);
  }
  void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
  BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) {
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
  }
  BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                    UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, prgnUpdate ? HRGN(*prgnUpdate) : nullptr, flags);
  }
  BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
  static void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
  int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }

  // --- scrolling. If GetScrollBarCtrl returns a control, it replaces the window's scroll bar.
  virtual CScrollBar* GetScrollBarCtrl(int) const { return nullptr; }
  // Moves child windows too; in a window that is not visible, only the children.
  void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr,
                    LPCRECT lpClipRect = nullptr);
  int GetScrollPos(int nBar) const;
  int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
  void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
  void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
  int GetScrollLimit(int nBar);
  BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
  BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
  void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);

  // --- messages
  LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
  }
  BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
  }
  void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE) {
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
  }
  static void SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                       BOOL bDeep, BOOL bOnlyPerm);
  int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
  static const MSG* GetCurrentMessage();

  // --- the controls of a dialog
  LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
  }
  void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
  int GetDlgItemText(int nID, CString& rString) const;
  void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
  }
  UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
  }
  void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
  void CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheck) {
    ::CheckRadioButton(m_hWnd, nIDFirst, nIDLast, nIDCheck);
  }
  UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
  BOOL IsDialogMessage(LPMSG lpMsg);
  // Transfers data from the members to the controls (FALSE) or back (TRUE) through DoDataExchange.
  // FALSE: the input was invalid, a message was shown and the control has the focus.
  BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
  void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

  // --- tips for parts of a window that are not windows
  BOOL EnableToolTips(BOOL bEnable = TRUE);
  static void CancelToolTips(BOOL bKeys = FALSE);
  // Fills pTI for the part under the point and returns its number, or -1. A text in
  // pTI is allocated with malloc and freed by the caller. LPSTR_TEXTCALLBACK requests
  // the text by TTN_NEEDTEXT.
  virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
  void FilterToolTipMessage(MSG* pMsg);

  // --- modal loop
  int RunModalLoop(DWORD dwFlags = 0);
  virtual BOOL ContinueModal();
  virtual void EndModalLoop(int nResult);

  // --- routing
  virtual BOOL PreTranslateMessage(MSG* pMsg);
  static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
  BOOL PreTranslateInput(LPMSG lpMsg);
  virtual BOOL IsFrameWnd() const { return FALSE; }
  virtual WNDPROC* GetSuperWndProcAddr();
  BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
  static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

  int m_nModalResult = 0;
  HWND m_hWndOwner = nullptr;
  UINT m_nFlags = 0;
  WNDPROC m_pfnSuper = nullptr;

 protected:
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
  virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
  virtual LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam);
  virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
  virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
  // Called on a control for a message that it sent to its parent; TRUE: the parent does not get it.
  virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
  BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
  virtual void DoDataExchange(CDataExchange*) {}
  virtual BOOL CheckAutoCenter() { return TRUE; }
  // Default handling of the current message with its original parameters.
  LRESULT Default();

#include "afxwin_on.inl"

 private:
  explicit CWnd(HWND place) : m_hWnd(place) {}
  static bool IsPlace(HWND hWnd);

  friend LRESULT AfxCallWndProc(CWnd*, HWND, UINT, WPARAM, LPARAM);
  friend class CDialog;
  friend class CMDIFrameWnd;
  friend class CControlBar;
  DECLARE_MESSAGE_MAP()
};

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
// Around a creation: the next window that this thread creates is attached to pWnd. Unhook returns
// FALSE if the creation failed before that.
void AfxHookWindowCreate(CWnd* pWnd);
BOOL AfxUnhookWindowCreate();
