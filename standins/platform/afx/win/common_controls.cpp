// Image list, tool tip and spin button.
#include "afximpl.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

namespace {
// The classes of the common controls must be registered once.
void RegisterCommonControls() {
  static const bool once = [] {
    INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
    return ::InitCommonControlsEx(&wanted) != 0;
  }();
  (void)once;
}
}  // namespace

// ---- image list

BOOL CImageList::Attach(HIMAGELIST hImageList) {
  if (!hImageList || m_hImageList) return FALSE;
  m_hImageList = hImageList;
  return TRUE;
}

HIMAGELIST CImageList::Detach() { return std::exchange(m_hImageList, nullptr); }

BOOL CImageList::DeleteImageList() {
  HIMAGELIST list = Detach();
  return list && ::ImageList_Destroy(list);
}

// ---- tool tip

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
  RegisterCommonControls();
  return CWnd::CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, AfxHandleOf(pParentWnd),
                        nullptr);
}

// Number 0 means the whole window, identified by its handle; other parts by their number.
void CToolTipCtrl::FillTool(TOOLINFO& info, const CWnd* pWnd, UINT_PTR nIDTool) {
  info = {};
  info.cbSize = sizeof(TOOLINFO);
  if (nIDTool == 0) {
    HWND parent = ::GetParent(pWnd->m_hWnd);
    info.hwnd = parent ? parent : pWnd->m_hWnd;
    info.uFlags = TTF_IDISHWND;
    info.uId = reinterpret_cast<UINT_PTR>(pWnd->m_hWnd);
  } else {
    info.hwnd = pWnd->m_hWnd;
    info.uId = nIDTool;
  }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
  TOOLINFO info;
  FillTool(info, pWnd, nIDTool);
  if (lpRectTool) info.rect = *lpRectTool;
  info.lpszText = const_cast<LPTSTR>(lpszText);
  return BOOL(SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
  wchar_t text[256];
  AfxLoadString(nIDText, text, 256);
  return AddTool(pWnd, text, lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
  TOOLINFO info;
  FillTool(info, pWnd, nIDTool);
  SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
  TOOLINFO info;
  FillTool(info, pWnd, nIDTool);
  info.lpszText = const_cast<LPTSTR>(lpszText);
  SendMessage(TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
  TOOLINFO info;
  FillTool(info, pWnd, nIDTool);
  info.rect = *lpRect;
  SendMessage(TTM_NEWTOOLRECT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
  TOOLINFO info;
  FillTool(info, pWnd, nIDTool);
  wchar_t text[256] = L"";
  info.lpszText = text;
  SendMessage(TTM_GETTEXT, 256, reinterpret_cast<LPARAM>(&info));
  str = text;
}

// ---- spin button

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  RegisterCommonControls();
  return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
  DWORD range = GetRange();
  lower = short(HIWORD(range));
  upper = short(LOWORD(range));
}
