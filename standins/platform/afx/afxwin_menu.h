// CMenu: owner of a menu handle. Owner-drawn rows are drawn by the CMenu of their handle, so
// attached menus are kept in a map. The destructor destroys the menu; Detach it where Windows owns
// it. Included by afxwin.h.
#pragma once

class CMenu : public CObject {
  DECLARE_DYNCREATE(CMenu)
 public:
  HMENU m_hMenu = nullptr;

  CMenu() = default;
  ~CMenu() override;
  CMenu(const CMenu&) = delete;
  CMenu& operator=(const CMenu&) = delete;

  BOOL CreateMenu() { return Attach(::CreateMenu()); }
  BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
  BOOL LoadMenu(LPCTSTR lpszResourceName);
  BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
  BOOL DestroyMenu();

  // A temporary object if no permanent one is attached; deleted at the next idle time.
  static CMenu* FromHandle(HMENU hMenu);
  static CMenu* FromHandlePermanent(HMENU hMenu);
  static void DeleteTempMap();
  BOOL Attach(HMENU hMenu);
  HMENU Detach();
  HMENU GetSafeHmenu() const { return m_hMenu; }  // `this` must not be null
  operator HMENU() const { return m_hMenu; }
  BOOL operator==(const CMenu& other) const { return other.m_hMenu == m_hMenu; }

  BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
  }
  BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                  LPCTSTR lpszNewItem = nullptr) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
  }
  BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                  LPCTSTR lpszNewItem = nullptr) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
  }
  BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
  BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
  UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
  }
  UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
  }
  BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
  }
  BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
  }
  int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
  UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
  UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
  int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
  }
  int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
  BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpInfo, BOOL fByPos = FALSE) {
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpInfo);
  }
  BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpInfo, BOOL fByPos = FALSE) {
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpInfo);
  }
  BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpInfo, BOOL fByPos = FALSE) {
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpInfo);
  }
  CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }

  // Runs the menu's modal loop. Meanwhile rows are measured by the menu object that contains the
  // row's identifier, in whichever sub-menu.
  BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
  BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

  virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
  virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
