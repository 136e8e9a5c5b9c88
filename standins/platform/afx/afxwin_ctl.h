// The standard controls: one class each over the published messages. An owner-drawn control draws
// itself in DrawItem, because its parent reflects WM_DRAWITEM to it. Included by afxwin.h.
#pragma once

class CStatic : public CWnd {
  DECLARE_DYNAMIC(CStatic)
 public:
  using CWnd::Create;
  virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                      UINT nID = 0xFFFF);
  HBITMAP SetBitmap(HBITMAP hBitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
  }
  HBITMAP GetBitmap() const {
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
  }
  HICON SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
  }
  HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
  virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CButton : public CWnd {
  DECLARE_DYNAMIC(CButton)
 public:
  using CWnd::Create;
  virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                      UINT nID);
  UINT GetState() const { return UINT(SendMessage(BM_GETSTATE)); }
  void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
  int GetCheck() const { return int(SendMessage(BM_GETCHECK)); }
  void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, WPARAM(nCheck)); }
  UINT GetButtonStyle() const { return GetStyle() & 0x0F; }
  void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) {
    SendMessage(BM_SETSTYLE, nStyle, bRedraw);
  }
  HBITMAP SetBitmap(HBITMAP hBitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
  }
  HICON SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
  }
  // Called only for a button with the style BS_OWNERDRAW; the base draws nothing.
  virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CListBox : public CWnd {
  DECLARE_DYNAMIC(CListBox)
 public:
  using CWnd::Create;
  virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
  int GetCount() const { return int(SendMessage(LB_GETCOUNT)); }
  int GetCurSel() const { return int(SendMessage(LB_GETCURSEL)); }
  int SetCurSel(int nSelect) { return int(SendMessage(LB_SETCURSEL, WPARAM(nSelect))); }
  int GetTopIndex() const { return int(SendMessage(LB_GETTOPINDEX)); }
  int SetTopIndex(int nIndex) { return int(SendMessage(LB_SETTOPINDEX, WPARAM(nIndex))); }
  DWORD_PTR GetItemData(int nIndex) const {
    return DWORD_PTR(SendMessage(LB_GETITEMDATA, WPARAM(nIndex)));
  }
  int SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return int(SendMessage(LB_SETITEMDATA, WPARAM(nIndex), LPARAM(dwItemData)));
  }
  int AddString(LPCTSTR lpszItem) {
    return int(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
  }
  int InsertString(int nIndex, LPCTSTR lpszItem) {
    return int(SendMessage(LB_INSERTSTRING, WPARAM(nIndex), reinterpret_cast<LPARAM>(lpszItem)));
  }
  int DeleteString(UINT nIndex) { return int(SendMessage(LB_DELETESTRING, nIndex)); }
  void ResetContent() { SendMessage(LB_RESETCONTENT); }
  int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return int(
        SendMessage(LB_FINDSTRINGEXACT, WPARAM(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
  }
  int GetTextLen(int nIndex) const { return int(SendMessage(LB_GETTEXTLEN, WPARAM(nIndex))); }
  void GetText(int nIndex, CString& rString) const;  // empty if the index is out of range
  int SetItemHeight(int nIndex, UINT cyItemHeight) {
    return int(SendMessage(LB_SETITEMHEIGHT, WPARAM(nIndex), LPARAM(cyItemHeight)));
  }
  int GetItemRect(int nIndex, LPRECT lpRect) const {
    return int(SendMessage(LB_GETITEMRECT, WPARAM(nIndex), reinterpret_cast<LPARAM>(lpRect)));
  }
  virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
  virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CComboBox : public CWnd {
  DECLARE_DYNAMIC(CComboBox)
 public:
  using CWnd::Create;
  virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
  int GetCount() const { return int(SendMessage(CB_GETCOUNT)); }
  int GetCurSel() const { return int(SendMessage(CB_GETCURSEL)); }
  int SetCurSel(int nSelect) { return int(SendMessage(CB_SETCURSEL, WPARAM(nSelect))); }
  DWORD_PTR GetItemData(int nIndex) const {
    return DWORD_PTR(SendMessage(CB_GETITEMDATA, WPARAM(nIndex)));
  }
  int SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return int(SendMessage(CB_SETITEMDATA, WPARAM(nIndex), LPARAM(dwItemData)));
  }
  int AddString(LPCTSTR lpszString) {
    return int(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
  }
  int DeleteString(UINT nIndex) { return int(SendMessage(CB_DELETESTRING, nIndex)); }
  void ResetContent() { SendMessage(CB_RESETCONTENT); }
  int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return int(
        SendMessage(CB_FINDSTRINGEXACT, WPARAM(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
  }
  int SelectString(int nStartAfter, LPCTSTR lpszString) {
    return int(
        SendMessage(CB_SELECTSTRING, WPARAM(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
  }
  int GetLBTextLen(int nIndex) const { return int(SendMessage(CB_GETLBTEXTLEN, WPARAM(nIndex))); }
  void GetLBText(int nIndex, CString& rString) const;  // empty if the index is out of range
  virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
  virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CEdit : public CWnd {
  DECLARE_DYNAMIC(CEdit)
 public:
  using CWnd::Create;
  virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
  // Positions count UTF-16 units. The packed form has 16 bits each and fails above 65535.
  DWORD GetSel() const { return DWORD(SendMessage(EM_GETSEL)); }
  void GetSel(int& nStartChar, int& nEndChar) const {
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar),
                reinterpret_cast<LPARAM>(&nEndChar));
  }
  void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
    SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
  }
  void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
  void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
    SendMessage(EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText));
  }
  BOOL GetModify() const { return BOOL(SendMessage(EM_GETMODIFY)); }
  void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
  BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return BOOL(SendMessage(EM_SETREADONLY, bReadOnly)); }
  void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
  UINT GetLimitText() const { return UINT(SendMessage(EM_GETLIMITTEXT)); }
  int GetLineCount() const { return int(SendMessage(EM_GETLINECOUNT)); }
  int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;  // no terminating zero
  int LineFromChar(int nIndex = -1) const {
    return int(SendMessage(EM_LINEFROMCHAR, WPARAM(nIndex)));
  }
  int LineIndex(int nLine = -1) const { return int(SendMessage(EM_LINEINDEX, WPARAM(nLine))); }
  int LineLength(int nLine = -1) const { return int(SendMessage(EM_LINELENGTH, WPARAM(nLine))); }
  void LineScroll(int nLines, int nChars = 0) {
    SendMessage(EM_LINESCROLL, WPARAM(nChars), nLines);
  }
  int GetFirstVisibleLine() const { return int(SendMessage(EM_GETFIRSTVISIBLELINE)); }
  int CharFromPos(CPoint pt) const {
    return int(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
  }
  CPoint PosFromChar(UINT nChar) const {
    return CPoint(LPARAM(SendMessage(EM_POSFROMCHAR, nChar)));
  }
  void SetMargins(UINT nLeft, UINT nRight) {
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
  }
  void GetRect(LPRECT lpRect) const {
    SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
  }
  BOOL CanUndo() const { return BOOL(SendMessage(EM_CANUNDO)); }
  BOOL Undo() { return BOOL(SendMessage(EM_UNDO)); }
  void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
  void Clear() { SendMessage(WM_CLEAR); }
  void Copy() { SendMessage(WM_COPY); }
  void Cut() { SendMessage(WM_CUT); }
  void Paste() { SendMessage(WM_PASTE); }
};

class CScrollBar : public CWnd {
  DECLARE_DYNAMIC(CScrollBar)
 public:
  using CWnd::Create;
  virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
  int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
  int SetScrollPos(int nPos, BOOL bRedraw = TRUE) {
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
  }
  void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
  }
  void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
  }
  void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
  BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
    return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
  }
  BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
    return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
  }
  int GetScrollLimit() { return CWnd::GetScrollLimit(SB_CTL); }
};
