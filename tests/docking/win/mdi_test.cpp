// MDI children: made, activated, destroyed, with docked palettes around them.
#include "dock_fixture.h"

namespace {

class MdiFrame : public CMDIFrameWnd {
 public:
  bool Open() {
    if (!Create(nullptr, L"主程序", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650))) return false;
    EnableDocking(CBRS_ALIGN_ANY);
    ShowWindow(SW_SHOW);
    RecalcLayout();
    return true;
  }
};

class Child : public CMDIChildWnd {
 public:
  static int alive;
  Child() { ++alive; }
  ~Child() override { --alive; }
  int m_activations = 0;

 protected:
  afx_msg void OnMDIActivate(BOOL activate, CWnd* to, CWnd* from) {
    m_activations += activate != FALSE;
    CMDIChildWnd::OnMDIActivate(activate, to, from);
  }
  DECLARE_MESSAGE_MAP()
};
int Child::alive = 0;
BEGIN_MESSAGE_MAP(Child, CMDIChildWnd)
ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

struct Mdi : testing::Test {
  void SetUp() override {
    frame = new MdiFrame;
    ASSERT_TRUE(frame->Open());
    AfxGetApp()->m_pMainWnd = frame;
    PumpAll();
  }
  void TearDown() override {
    frame->DestroyWindow();
    PumpAll();
    EXPECT_EQ(Child::alive, 0);
    EXPECT_EQ(CountWindows(), 0);
  }
  Child* MakeChild(LPCTSTR title) {
    auto* child = new Child;
    return child->Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                         CFrameWnd::rectDefault, frame)
               ? child
               : nullptr;
  }
  CRect ClientAreaRect() const {
    CRect rect;
    ::GetWindowRect(frame->m_hWndMDIClient, rect);
    frame->ScreenToClient(rect);
    return rect;
  }
  MdiFrame* frame = nullptr;
};

}  // namespace

TEST_F(Mdi, TheMdiAreaFillsTheFrame) {
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(ClientAreaRect(), client);
  EXPECT_EQ(frame->MDIGetActive(), nullptr);
  EXPECT_EQ(frame->GetActiveFrame(), frame);
}

TEST_F(Mdi, PalettesTakeTheirRoomFromTheMdiArea) {
  TestPalette left, right;
  ASSERT_TRUE(left.CreateIn(frame, true));
  ASSERT_TRUE(right.CreateIn(frame, false));
  const int edge = ::GetSystemMetrics(SM_CXFRAME);
  CRect client;
  frame->GetClientRect(client);
  EXPECT_EQ(ClientAreaRect(), CRect(76 + edge, 0, client.right - 76 - edge, client.bottom));
}

TEST_F(Mdi, TheNewestChildIsActive) {
  Child* first = MakeChild(L"甲");
  Child* second = MakeChild(L"乙");
  ASSERT_TRUE(first && second);
  EXPECT_EQ(frame->MDIGetActive(), second);
  EXPECT_EQ(frame->GetActiveFrame(), second);
  EXPECT_EQ(second->GetMDIFrame(), frame);
  EXPECT_EQ(first->m_activations, 1);
}

TEST_F(Mdi, ActivatingAChildTellsBoth) {
  Child* first = MakeChild(L"甲");
  Child* second = MakeChild(L"乙");
  ASSERT_TRUE(first && second);
  frame->MDIActivate(first);
  EXPECT_EQ(frame->MDIGetActive(), first);
  EXPECT_EQ(first->m_activations, 2);
  second->MDIActivate();
  EXPECT_EQ(frame->MDIGetActive(), second);
  frame->MDINext();
  EXPECT_EQ(frame->MDIGetActive(), first);
}

TEST_F(Mdi, DestroyingAChildActivatesTheOther) {
  Child* first = MakeChild(L"甲");
  Child* second = MakeChild(L"乙");
  ASSERT_TRUE(first && second);
  second->MDIDestroy();
  EXPECT_EQ(Child::alive, 1);
  EXPECT_EQ(frame->MDIGetActive(), first);
  first->DestroyWindow();
  EXPECT_EQ(Child::alive, 0);
  EXPECT_EQ(frame->MDIGetActive(), nullptr);
}

TEST_F(Mdi, AMaximizedChildFillsTheAreaAndShowsItsNameInTheFrame) {
  Child* child = MakeChild(L"平面图");
  ASSERT_TRUE(child);
  child->MDIMaximize();
  BOOL maximized = FALSE;
  EXPECT_EQ(frame->MDIGetActive(&maximized), child);
  EXPECT_TRUE(maximized);
  CString title;
  frame->GetWindowText(title);
  EXPECT_NE(title.Find(L"平面图"), -1);
  child->MDIRestore();
  frame->MDIGetActive(&maximized);
  EXPECT_FALSE(maximized);
}

TEST_F(Mdi, AHundredChildrenComeAndGo) {
  for (int i = 0; i < 100; ++i) {
    Child* child = MakeChild(L"图");
    ASSERT_TRUE(child);
    if (i % 2) child->MDIMaximize();
    if (i % 3 == 0) MakeChild(L"另一张")->DestroyWindow();
    child->DestroyWindow();
  }
  EXPECT_EQ(Child::alive, 0);
}

TEST_F(Mdi, TheFrameTakesItsChildrenAlong) {
  MakeChild(L"甲");
  MakeChild(L"乙");
  EXPECT_EQ(Child::alive, 2);
}
