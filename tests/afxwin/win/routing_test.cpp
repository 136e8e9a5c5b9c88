// Routing of commands and notifications: virtual OnCommand, message maps, reflection to the control
// that sent it, and PreTranslateMessage from the window to its parents.
#include "test_app.h"

namespace {

class ReflectingButton : public CButton {
 public:
  int clicked = 0, drawn = 0;
  UINT drawnState = 0;
  bool keepClick = false;
  BOOL OnClicked() {
    ++clicked;
    return keepClick;
  }
  void DrawItem(LPDRAWITEMSTRUCT lpDraw) override {
    ++drawn;
    drawnState = lpDraw->itemState;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingButton, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, OnClicked)
END_MESSAGE_MAP()

class ColouredEdit : public CEdit {
 public:
  CBrush brush{RGB(1, 2, 3)};
  UINT kind = 99;
  int changes = 0;
  HBRUSH CtlColor(CDC* dc, UINT nCtlColor) {
    kind = nCtlColor;
    dc->SetTextColor(RGB(9, 8, 7));
    return brush;
  }
  void OnChange() { ++changes; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ColouredEdit, CEdit)
ON_WM_CTLCOLOR_REFLECT()
ON_CONTROL_REFLECT(EN_CHANGE, OnChange)
END_MESSAGE_MAP()

class Parent : public TestWindow {
 public:
  std::vector<std::string> diary;
  bool greyCommand = false;
  void OnThree() { diary.push_back("three"); }
  void OnRange(UINT id) { diary.push_back("range " + std::to_string(id)); }
  void OnClick() { diary.push_back("click"); }
  void OnEnChange() { diary.push_back("change"); }
  void OnUpdateThree(CCmdUI* ui) { ui->Enable(!greyCommand); }
  void OnTip(NMHDR* header, LRESULT* result) {
    diary.push_back("notify " + std::to_string(header->idFrom));
    *result = 17;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_COMMAND(3, OnThree)
ON_COMMAND_RANGE(5001, 6000, OnRange)
ON_UPDATE_COMMAND_UI(3, OnUpdateThree)
ON_BN_CLICKED(40, OnClick)
ON_EN_CHANGE(41, OnEnChange)
ON_NOTIFY(NM_CLICK, 40, OnTip)
END_MESSAGE_MAP()

constexpr DWORD kOwnerDrawn = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_NOTIFY | BS_OWNERDRAW;
}  // namespace

TEST(Commands, ReachTheirHandlerFromMenusAndRanges) {
  Parent w;
  ASSERT_TRUE(w.Make());
  EXPECT_NE(0, w.SendMessage(WM_COMMAND, 3));
  w.SendMessage(WM_COMMAND, 5001);
  w.SendMessage(WM_COMMAND, MAKEWPARAM(6000, 1));  // from an accelerator
  w.SendMessage(WM_COMMAND, 6001);
  EXPECT_EQ((std::vector<std::string>{"three", "range 5001", "range 6000"}), w.diary);
}

TEST(Commands, ThatAreDisabledAreIgnored) {
  Parent w;
  ASSERT_TRUE(w.Make());
  w.greyCommand = true;
  w.SendMessage(WM_COMMAND, 3);
  EXPECT_TRUE(w.diary.empty());
}

TEST(Commands, GoThroughTheVirtualOnCommandFirst) {
  struct Group : Parent {
    WPARAM seen = 0;
    BOOL OnCommand(WPARAM w, LPARAM l) override {
      seen = w;
      return CWnd::OnCommand(w, l);
    }
  } group;
  ASSERT_TRUE(group.Make());
  CButton button;
  ASSERT_TRUE(button.Create(L"x", kOwnerDrawn, CRect(0, 0, 50, 20), &group, 40));
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(40, LOWORD(group.seen));
  EXPECT_EQ((std::vector<std::string>{"click"}), group.diary);
}

TEST(Commands, CanBeSearchedForTheirTargetWithoutACall) {
  Parent w;
  AFX_CMDHANDLERINFO info{};
  EXPECT_TRUE(w.OnCmdMsg(3, CN_COMMAND, nullptr, &info));
  EXPECT_EQ(&w, info.pTarget);
  EXPECT_FALSE(w.OnCmdMsg(4, CN_COMMAND, nullptr, &info));
  EXPECT_TRUE(w.diary.empty());
}

TEST(Reflection, AControlGetsItsOwnClickFirstAndMayHandleIt) {
  Parent w;
  ReflectingButton button;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(button.Create(L"x", kOwnerDrawn, CRect(0, 0, 50, 20), &w, 40));
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(1, button.clicked);
  EXPECT_EQ(1u, w.diary.size());
  button.keepClick = true;
  button.SendMessage(BM_CLICK);
  EXPECT_EQ(2, button.clicked);
  EXPECT_EQ(1u, w.diary.size());
}

TEST(Reflection, AnOwnerDrawnButtonDrawsItself) {
  Parent w;
  ReflectingButton button;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  ASSERT_TRUE(button.Create(L"x", kOwnerDrawn, CRect(0, 0, 50, 20), &w, 40));
  button.drawn = 0;
  button.RedrawWindow();
  EXPECT_EQ(1, button.drawn);
  EXPECT_FALSE(button.drawnState & ODS_DISABLED);
  button.EnableWindow(FALSE);
  button.RedrawWindow();
  EXPECT_TRUE(button.drawnState & ODS_DISABLED);
}

TEST(Reflection, AnEditChoosesItsOwnColours) {
  Parent w;
  ColouredEdit edit;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 20), &w, 41));
  CClientDC dc(&edit);
  LRESULT brush = w.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                reinterpret_cast<LPARAM>(edit.m_hWnd));
  EXPECT_EQ(reinterpret_cast<LRESULT>(HBRUSH(edit.brush)), brush);
  EXPECT_EQ(UINT(CTLCOLOR_EDIT), edit.kind);
  EXPECT_EQ(RGB(9, 8, 7), dc.GetTextColor());
}

TEST(Reflection, ANotificationHandledByTheControlDoesNotReachTheParent) {
  Parent w;
  ColouredEdit reflecting;
  CEdit plain;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(reflecting.Create(WS_CHILD, CRect(0, 0, 80, 20), &w, 41));
  reflecting.ReplaceSel(L"a");
  EXPECT_EQ(1, reflecting.changes);
  EXPECT_TRUE(w.diary.empty());
  reflecting.DestroyWindow();
  ASSERT_TRUE(plain.Create(WS_CHILD, CRect(0, 0, 80, 20), &w, 41));
  plain.ReplaceSel(L"b");
  EXPECT_EQ((std::vector<std::string>{"change"}), w.diary);
}

TEST(Reflection, AWindowWithoutAnObjectHandlesNothing) {
  Parent w;
  ASSERT_TRUE(w.Make());
  HWND button = ::CreateWindowEx(0, L"BUTTON", L"", WS_CHILD, 0, 0, 9, 9, w.m_hWnd,
                                 reinterpret_cast<HMENU>(40), nullptr, nullptr);
  ::SendMessage(button, BM_CLICK, 0, 0);
  EXPECT_EQ((std::vector<std::string>{"click"}), w.diary);
}

TEST(Notifications, ReturnTheHandlersResult) {
  Parent w;
  CButton button;
  ASSERT_TRUE(w.Make());
  ASSERT_TRUE(button.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &w, 40));
  NMHDR header{button.m_hWnd, 40, UINT(NM_CLICK)};
  EXPECT_EQ(17, w.SendMessage(WM_NOTIFY, 40, reinterpret_cast<LPARAM>(&header)));
  EXPECT_EQ((std::vector<std::string>{"notify 40"}), w.diary);
}

// ---- PreTranslateMessage

namespace {
class Filter : public TestWindow {
 public:
  Filter(std::string name, std::string& diary) : m_name(std::move(name)), m_diary(diary) {}
  bool eats = false;
  BOOL PreTranslateMessage(MSG* pMsg) override {
    m_diary += m_name;
    return eats || CWnd::PreTranslateMessage(pMsg);
  }

 private:
  std::string m_name;
  std::string& m_diary;
};
}  // namespace

TEST(PreTranslate, WalksFromTheWindowToItsOutermostParent) {
  std::string diary;
  Filter frame("frame ", diary), group("group ", diary), item("item ", diary);
  ASSERT_TRUE(frame.Make());
  ASSERT_TRUE(group.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 90, 90), &frame, 1));
  ASSERT_TRUE(item.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 90, 90), &group, 2));
  MSG message{item.m_hWnd, WM_KEYDOWN, VK_F4, 0, 0, {}};
  EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &message));
  EXPECT_EQ("item group frame ", diary);
  diary.clear();
  CWnd::WalkPreTranslateTree(group.m_hWnd, &message);
  EXPECT_EQ("item group ", diary);
  diary.clear();
  group.eats = true;
  EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &message));
  EXPECT_EQ("item group ", diary);
}

TEST(PreTranslate, SkipsWindowsWithoutAnObject) {
  std::string diary;
  Filter frame("frame ", diary);
  ASSERT_TRUE(frame.Make());
  HWND edit = ::CreateWindowEx(0, L"EDIT", L"", WS_CHILD, 0, 0, 9, 9, frame.m_hWnd, nullptr,
                               nullptr, nullptr);
  MSG message{edit, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  CWnd::WalkPreTranslateTree(nullptr, &message);
  EXPECT_EQ("frame ", diary);
}

TEST(PreTranslate, AMessageThatWasHandledIsNotDispatched) {
  std::string diary;
  Filter w("w ", diary);
  ASSERT_TRUE(w.Make());
  w.SetTimer(1, 1, nullptr);
  w.KillTimer(1);
  PumpQueue();
  diary.clear();
  w.eats = true;
  w.PostMessage(WM_CLOSE);
  PumpQueue();
  EXPECT_TRUE(::IsWindow(w.m_hWnd));
  EXPECT_NE(std::string::npos, diary.find("w "));
  w.eats = false;
  w.PostMessage(WM_CLOSE);
  PumpQueue();
  EXPECT_EQ(nullptr, w.m_hWnd);
}

TEST(Relations, DescendantsAreFoundAtAnyDepth) {
  TestWindow top;
  CWnd group;
  CButton inner;
  ASSERT_TRUE(top.Make());
  ASSERT_TRUE(group.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 90, 90), &top, 5000));
  ASSERT_TRUE(inner.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &group, 5007));
  EXPECT_EQ(&inner, top.GetDescendantWindow(5007));
  EXPECT_EQ(nullptr, top.GetDescendantWindow(5008));
  EXPECT_EQ(&top, inner.GetTopLevelParent());
  EXPECT_TRUE(AfxIsDescendant(top.m_hWnd, inner.m_hWnd));
  EXPECT_FALSE(AfxIsDescendant(inner.m_hWnd, top.m_hWnd));
}

TEST(Relations, TheOwnerIsTheParentUntilAnotherIsSet) {
  TestWindow top, other;
  CWnd child;
  ASSERT_TRUE(top.Make());
  ASSERT_TRUE(other.Make());
  ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 9, 9), &top, 1));
  EXPECT_EQ(&top, child.GetOwner());
  child.SetOwner(&other);
  EXPECT_EQ(&other, child.GetOwner());
  EXPECT_EQ(&top, child.GetParent());
}

TEST(Relations, AMessageToDescendantsReachesEachOnce) {
  struct Counter : CWnd {
    int count = 0;
    LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
      count += m == WM_USER + 9;
      return CWnd::WindowProc(m, w, l);
    }
  };
  TestWindow top;
  Counter child, grandchild;
  ASSERT_TRUE(top.Make());
  ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 9, 9), &top, 1));
  ASSERT_TRUE(grandchild.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 9, 9), &child, 2));
  for (BOOL onlyPerm : {FALSE, TRUE}) {
    child.count = grandchild.count = 0;
    top.SendMessageToDescendants(WM_USER + 9, 0, 0, TRUE, onlyPerm);
    EXPECT_EQ(1, child.count);
    EXPECT_EQ(1, grandchild.count);
  }
  child.count = grandchild.count = 0;
  top.SendMessageToDescendants(WM_USER + 9, 0, 0, FALSE);
  EXPECT_EQ(1, child.count);
  EXPECT_EQ(0, grandchild.count);
}
