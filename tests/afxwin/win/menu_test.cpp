// Menus: rows, handle map, resources, and rows that the menu object measures
// and draws during tracking.
#include "test_app.h"

namespace {
class DrawnMenu : public CMenu {
 public:
  std::vector<ULONG_PTR> measured, drawn;
  void MeasureItem(LPMEASUREITEMSTRUCT item) override {
    measured.push_back(item->itemData);
    item->itemWidth = 80;
    item->itemHeight = 20;
  }
  void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemData); }
};

// Ends the menu's loop at its first idle time, when all rows have been painted.
class MenuOwner : public TestWindow {
 public:
  std::vector<UINT> selected;
  bool left = false;
  void OnEnterIdle(UINT why, CWnd*) {
    if (why == MSGF_MENU) ::EndMenu();
  }
  void OnExitMenuLoop(BOOL) { left = true; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MenuOwner, CWnd)
ON_WM_ENTERIDLE()
ON_WM_EXITMENULOOP()
END_MESSAGE_MAP()
}  // namespace

TEST(Menu, DestroysItsHandleInTheDestructor) {
  HMENU handle;
  {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    handle = menu.m_hMenu;
    EXPECT_EQ(&menu, CMenu::FromHandlePermanent(handle));
  }
  EXPECT_FALSE(::IsMenu(handle));
  EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
}

TEST(Menu, IsNotDestroyedWhenDetached) {
  CMenu menu;
  ASSERT_TRUE(menu.CreatePopupMenu());
  HMENU handle = menu.Detach();
  EXPECT_TRUE(::IsMenu(handle));
  EXPECT_FALSE(menu.DestroyMenu());
  ::DestroyMenu(handle);
}

TEST(Menu, RowsAreCountedNamedAndChecked) {
  CMenu menu, sub;
  menu.CreatePopupMenu();
  sub.CreatePopupMenu();
  menu.AppendMenu(MF_STRING, 2000, L"画墙\tHQ");
  menu.AppendMenu(MF_SEPARATOR);
  menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(sub.m_hMenu), L"更多");
  EXPECT_EQ(3, menu.GetMenuItemCount());
  EXPECT_EQ(2000u, menu.GetMenuItemID(0));
  CString text;
  EXPECT_EQ(5, menu.GetMenuString(2000, text, MF_BYCOMMAND));
  EXPECT_STREQ(L"画墙\tHQ", text);
  menu.CheckMenuItem(2000, MF_CHECKED);
  EXPECT_TRUE(menu.GetMenuState(2000, MF_BYCOMMAND) & MF_CHECKED);
  EXPECT_EQ(&sub, menu.GetSubMenu(2));
  sub.Detach();
}

TEST(Menu, IsLoadedFromTheResources) {
  CMenu menu;
  ASSERT_TRUE(menu.LoadMenu(101));
  CMenu* popup = menu.GetSubMenu(0);
  ASSERT_NE(nullptr, popup);
  EXPECT_EQ(4, popup->GetMenuItemCount());
  EXPECT_EQ(40231u, popup->GetMenuItemID(3));
  EXPECT_FALSE(CMenu().LoadMenu(999));
}

TEST(Menu, ATrackedMenuMeasuresAndDrawsItsOwnRows) {
  MenuOwner owner;
  ASSERT_TRUE(owner.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  DrawnMenu menu;
  menu.CreatePopupMenu();
  menu.AppendMenu(MF_OWNERDRAW, 3000, reinterpret_cast<LPCTSTR>(11));
  menu.AppendMenu(MF_OWNERDRAW, 3001, reinterpret_cast<LPCTSTR>(12));
  menu.TrackPopupMenu(TPM_RIGHTBUTTON, 100, 100, &owner);
  EXPECT_TRUE(owner.left);
  EXPECT_EQ((std::vector<ULONG_PTR>{11, 12}), menu.measured);
  ASSERT_GE(menu.drawn.size(), 2u);
  EXPECT_EQ(11u, menu.drawn[0]);
  EXPECT_EQ(12u, menu.drawn[1]);
}

namespace {
// Sends WM_MEASUREITEM for one row, as Windows does for the layout of the menu.
UINT HeightAsked(CWnd& owner, UINT id, ULONG_PTR data) {
  MEASUREITEMSTRUCT item{ODT_MENU, 0, id, 0, 0, data};
  owner.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
  return item.itemHeight;
}

// Measures a row at the start of a menu's loop.
class AskingOwner : public MenuOwner {
 public:
  UINT subRow = 0, unknownRow = 1;
  LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
    if (m == WM_ENTERMENULOOP) {
      subRow = HeightAsked(*this, 3010, 5);
      unknownRow = HeightAsked(*this, 4444, 5);
    }
    return MenuOwner::WindowProc(m, w, l);
  }
};
}  // namespace

TEST(Menu, ARowOfASubMenuIsMeasuredByThatSubMenu) {
  AskingOwner owner;
  ASSERT_TRUE(owner.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  DrawnMenu menu, sub;
  menu.CreatePopupMenu();
  sub.CreatePopupMenu();
  sub.AppendMenu(MF_OWNERDRAW, 3010, reinterpret_cast<LPCTSTR>(5));
  menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(sub.m_hMenu), L"x");
  menu.AppendMenu(MF_STRING, 3001, L"y");
  menu.TrackPopupMenu(0, 100, 100, &owner);
  EXPECT_EQ(20u, owner.subRow);
  EXPECT_EQ(0u, owner.unknownRow);
  EXPECT_EQ(1u, sub.measured.size());
  EXPECT_TRUE(menu.measured.empty());
  menu.RemoveMenu(0, MF_BYPOSITION);
}

TEST(Menu, OutsideOfTrackingNoRowIsMeasured) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  DrawnMenu menu;
  menu.CreatePopupMenu();
  menu.AppendMenu(MF_OWNERDRAW, 3000, reinterpret_cast<LPCTSTR>(1));
  EXPECT_EQ(0u, HeightAsked(w, 3000, 1));
  EXPECT_TRUE(menu.measured.empty());
}

// ---- rows and the state of commands

namespace {
class CommandTarget : public CCmdTarget {
 public:
  void OnUpdate(CCmdUI* ui) {
    ui->Enable(FALSE);
    ui->SetCheck(1);
  }
  void OnPlain() {}
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CommandTarget, CCmdTarget)
ON_UPDATE_COMMAND_UI(10, OnUpdate)
ON_COMMAND(11, OnPlain)
END_MESSAGE_MAP()

UINT StateAfterUpdate(CMenu& menu, UINT index) {
  CommandTarget target;
  CCmdUI ui;
  ui.m_pMenu = &menu;
  ui.m_nIndex = index;
  ui.m_nID = menu.GetMenuItemID(int(index));
  ui.DoUpdate(&target, TRUE);
  return menu.GetMenuState(index, MF_BYPOSITION);
}
}  // namespace

TEST(CmdUI, SetsTheRowOfAMenu) {
  CMenu menu;
  menu.CreatePopupMenu();
  for (UINT id : {10u, 11u, 12u}) menu.AppendMenu(MF_STRING, id, L"row");
  EXPECT_EQ(UINT(MF_CHECKED | MF_GRAYED | MF_DISABLED), StateAfterUpdate(menu, 0));
  EXPECT_EQ(0u, StateAfterUpdate(menu, 1));                             // has a handler
  EXPECT_EQ(UINT(MF_GRAYED | MF_DISABLED), StateAfterUpdate(menu, 2));  // has none
}
