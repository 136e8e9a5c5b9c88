// The standard controls: creation, and reflected owner drawing.
#include "afximpl.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
  return CWnd::Create(L"STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}
BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
  return CWnd::Create(L"BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}
BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  return CWnd::Create(L"LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}
BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  return CWnd::Create(L"COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}
BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  return CWnd::Create(L"EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}
BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
  return CWnd::Create(L"SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- owner drawing

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pResult);
  DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
  return TRUE;
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pResult);
  DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
  return TRUE;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  if (message == WM_DRAWITEM) {
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
  } else if (message == WM_MEASUREITEM) {
    MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
  } else {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
  }
  return TRUE;
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
  if (message == WM_DRAWITEM) {
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
  } else if (message == WM_MEASUREITEM) {
    MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
  } else {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
  }
  return TRUE;
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}
void CButton::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

// ---- texts

void CListBox::GetText(int nIndex, CString& rString) const {
  int length = GetTextLen(nIndex);
  rString.Empty();
  if (length == LB_ERR) return;
  SendMessage(LB_GETTEXT, WPARAM(nIndex), reinterpret_cast<LPARAM>(rString.GetBuffer(length + 1)));
  rString.ReleaseBuffer(length);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
  int length = GetLBTextLen(nIndex);
  rString.Empty();
  if (length == CB_ERR) return;
  SendMessage(CB_GETLBTEXT, WPARAM(nIndex),
              reinterpret_cast<LPARAM>(rString.GetBuffer(length + 1)));
  rString.ReleaseBuffer(length);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
  SendMessage(EM_SETSEL, WPARAM(nStartChar), nEndChar);
  if (!bNoScroll) SendMessage(EM_SCROLLCARET);
}

// The control reads the buffer's length from its first two bytes.
int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
  if (nMaxLength < 1) return 0;
  *reinterpret_cast<WORD*>(lpszBuffer) = WORD(nMaxLength);
  return int(SendMessage(EM_GETLINE, WPARAM(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}
