// Classes over the common controls: image list, tool tip and spin button. Include it where
// they are used. Windows only.
#pragma once

#include "afxwin.h"

class CImageList : public CObject {
  DECLARE_DYNCREATE(CImageList)
 public:
  HIMAGELIST m_hImageList = nullptr;

  CImageList() = default;
  ~CImageList() override { DeleteImageList(); }
  BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
  }
  BOOL Attach(HIMAGELIST hImageList);
  HIMAGELIST Detach();
  BOOL DeleteImageList();
  HIMAGELIST GetSafeHandle() const { return m_hImageList; }
  operator HIMAGELIST() const { return m_hImageList; }
  int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
  int Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, *pbmImage, pbmMask ? HBITMAP(*pbmMask) : nullptr);
  }
  int Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
  }
  int Add(HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
  BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
  BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
  }
};

class CToolTipCtrl : public CWnd {
  DECLARE_DYNAMIC(CToolTipCtrl)
 public:
  using CWnd::Create;
  virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
  void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, bActivate); }
  // The tool is the whole window if nIDTool is 0, else the rectangle in its client area.
  // LPSTR_TEXTCALLBACK makes the control request the text by TTN_NEEDTEXT.
  BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
               UINT_PTR nIDTool = 0);
  BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
  void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
  void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
  void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
  void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
  int GetToolCount() const { return int(SendMessage(TTM_GETTOOLCOUNT)); }
  void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
  int SetMaxTipWidth(int iWidth) { return int(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
  int GetMaxTipWidth() const { return int(SendMessage(TTM_GETMAXTIPWIDTH)); }
  void SetDelayTime(UINT nDelay) { SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
  void SetDelayTime(DWORD dwDuration, int iTime) {
    SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
  }
  int GetDelayTime(DWORD dwDuration) const {
    return int(SendMessage(TTM_GETDELAYTIME, dwDuration));
  }
  void Pop() { SendMessage(TTM_POP); }
  void Update() { SendMessage(TTM_UPDATE); }

 private:
  static void FillTool(TOOLINFO& info, const CWnd* pWnd, UINT_PTR nIDTool);
};

class CSpinButtonCtrl : public CWnd {
  DECLARE_DYNAMIC(CSpinButtonCtrl)
 public:
  using CWnd::Create;
  virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
  void SetRange(short nLower, short nUpper) {
    SendMessage(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
  }
  void SetRange32(int nLower, int nUpper) { SendMessage(UDM_SETRANGE32, WPARAM(nLower), nUpper); }
  DWORD GetRange() const {
    return DWORD(SendMessage(UDM_GETRANGE));
  }  // low word upper, high word lower
  void GetRange(int& lower, int& upper) const;
  void GetRange32(int& lower, int& upper) const {
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
  }
  int SetPos(int nPos) { return short(LOWORD(SendMessage(UDM_SETPOS, 0, MAKELPARAM(nPos, 0)))); }
  // The position in the low word; the high word is not 0 if the buddy's text is no number.
  int GetPos() const { return int(SendMessage(UDM_GETPOS)); }
  CWnd* SetBuddy(CWnd* pWndBuddy) {
    return FromHandle(reinterpret_cast<HWND>(SendMessage(
        UDM_SETBUDDY, reinterpret_cast<WPARAM>(pWndBuddy ? pWndBuddy->m_hWnd : nullptr))));
  }
};
