// CMenu: the handle map and tracking with owner-drawn rows.
#include "afximpl.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() { DestroyMenu(); }

CMenu* CMenu::FromHandle(HMENU hMenu) { return AfxGetThreadState().menus.FromHandle(hMenu); }

CMenu* CMenu::FromHandlePermanent(HMENU hMenu) {
  return AfxGetThreadState().menus.LookupPermanent(hMenu);
}

void CMenu::DeleteTempMap() { AfxGetThreadState().menus.DeleteTemporary(); }

BOOL CMenu::Attach(HMENU hMenu) {
  if (!hMenu) return FALSE;
  AfxGetThreadState().menus.SetPermanent(m_hMenu = hMenu, this);
  return TRUE;
}

HMENU CMenu::Detach() {
  HMENU menu = m_hMenu;
  if (menu) AfxGetThreadState().menus.Remove(menu, this);
  m_hMenu = nullptr;
  return menu;
}

BOOL CMenu::DestroyMenu() {
  HMENU menu = Detach();
  return menu && ::DestroyMenu(menu);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
  return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
  int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
  ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
  rString.ReleaseBuffer(length);
  return length;
}

namespace {
// The menu being tracked, whose objects measure the rows for the owner window.
class Tracking {
 public:
  Tracking(HWND owner, HMENU menu)
      : m_owner(std::exchange(AfxGetThreadState().trackingWindow, owner)),
        m_menu(std::exchange(AfxGetThreadState().trackingMenu, menu)) {}
  ~Tracking() {
    AfxGetThreadState().trackingWindow = m_owner;
    AfxGetThreadState().trackingMenu = m_menu;
  }

 private:
  HWND m_owner;
  HMENU m_menu;
};
}  // namespace

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
  Tracking tracking(AfxHandleOf(pWnd), m_hMenu);
  return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, AfxHandleOf(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
  Tracking tracking(AfxHandleOf(pWnd), m_hMenu);
  return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, AfxHandleOf(pWnd), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
