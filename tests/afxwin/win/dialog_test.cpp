// Dialogs: modal and modeless, closing, keys, and the transfer of data between members and controls
// at the start and the end.
#include "test_app.h"

#include <functional>

namespace {
class ScaleDialog : public CDialog {
 public:
  explicit ScaleDialog(CWnd* parent = nullptr) : CDialog(100, parent) {}
  double scale = 100;
  std::function<void(ScaleDialog&)> atStart, atIdle;
  int filtered = 0, commands = 0;
  bool sawParentDisabled = false;
  bool failExchange = false;

  BOOL PreTranslateMessage(MSG* pMsg) override {
    filtered += pMsg->message == WM_USER + 3;
    return CDialog::PreTranslateMessage(pMsg);
  }

 protected:
  BOOL OnInitDialog() override {
    BOOL focus = CDialog::OnInitDialog();
    if (m_pParentWnd) sawParentDisabled = !m_pParentWnd->IsWindowEnabled();
    if (atStart) atStart(*this);
    return focus;
  }
  void DoDataExchange(CDataExchange* pDX) override {
    if (failExchange) AfxThrowUserException();
    DDX_Text(pDX, 1001, scale);
  }
  LRESULT OnKickIdle(WPARAM, LPARAM) {
    if (atIdle) std::exchange(atIdle, nullptr)(*this);
    return FALSE;
  }
  void OnCommand40000() { ++commands; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ScaleDialog, CDialog)
ON_MESSAGE(WM_KICKIDLE, OnKickIdle)
ON_COMMAND(40000, OnCommand40000)
END_MESSAGE_MAP()

void Press(CWnd& dialog, int id) {
  dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(::GetDlgItem(dialog.m_hWnd, id)));
}
}  // namespace

TEST(Dialog, ReturnsTheButtonAndTheDataOfItsControls) {
  ScaleDialog d;
  CString shown;
  d.atIdle = [&](ScaleDialog& self) {
    self.GetDlgItemText(1001, shown);
    self.SetDlgItemText(1001, L"250");
    Press(self, IDOK);
  };
  EXPECT_EQ(IDOK, d.DoModal());
  EXPECT_STREQ(L"100", shown);
  EXPECT_EQ(250, d.scale);
  EXPECT_EQ(nullptr, d.m_hWnd);
}

TEST(Dialog, CancelKeepsTheData) {
  ScaleDialog d;
  d.atIdle = [](ScaleDialog& self) {
    self.SetDlgItemText(1001, L"250");
    Press(self, IDCANCEL);
  };
  EXPECT_EQ(IDCANCEL, d.DoModal());
  EXPECT_EQ(100, d.scale);
}

TEST(Dialog, StaysOpenWithAMessageWhenTheInputIsNoNumber) {
  ScaleDialog d;
  App().boxes.clear();
  bool stillOpen = false;
  d.atIdle = [&](ScaleDialog& self) {
    self.SetDlgItemText(1001, L"abc");
    Press(self, IDOK);
    stillOpen = self.ContinueModal();
    Press(self, IDCANCEL);
  };
  EXPECT_EQ(IDCANCEL, d.DoModal());
  EXPECT_TRUE(stillOpen);
  ASSERT_EQ(1u, App().boxes.size());
  EXPECT_EQ(L"请输入一个数。", App().boxes[0]);
}

TEST(Dialog, CanBeOpenedRepeatedly) {
  ScaleDialog d;
  for (int i = 0; i < 100; ++i) {
    d.atStart = [](ScaleDialog& self) { self.PostMessage(WM_COMMAND, IDOK); };
    ASSERT_EQ(IDOK, d.DoModal()) << i;
    ASSERT_EQ(nullptr, d.m_hWnd);
  }
}

TEST(Dialog, EndedInOnInitDialogReturnsThatResult) {
  ScaleDialog d;
  d.atStart = [](ScaleDialog& self) { self.EndDialog(77); };
  EXPECT_EQ(77, d.DoModal());
}

TEST(Dialog, WhoseDataCannotBeShownFails) {
  ScaleDialog d;
  d.failExchange = true;
  EXPECT_EQ(-1, d.DoModal());
}

TEST(Dialog, WithoutATemplateFailsAndDisablesNothing) {
  struct NoTemplate : CDialog {
    explicit NoTemplate(CWnd* parent) : CDialog(999, parent) {}
  };
  TestWindow owner;
  ASSERT_TRUE(owner.Make());
  NoTemplate d(&owner);
  EXPECT_EQ(-1, d.DoModal());
  EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, DisablesItsOwnerWhileItIsOpen) {
  TestWindow owner;
  ASSERT_TRUE(owner.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  ScaleDialog d(&owner);
  d.atIdle = [](ScaleDialog& self) { Press(self, IDOK); };
  EXPECT_EQ(IDOK, d.DoModal());
  EXPECT_TRUE(d.sawParentDisabled);
  EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, ItsLoopRunsPreTranslateMessage) {
  ScaleDialog d;
  d.atIdle = [](ScaleDialog& self) {
    self.PostMessage(WM_USER + 3);
    self.PostMessage(WM_COMMAND, IDOK);
  };
  EXPECT_EQ(IDOK, d.DoModal());
  EXPECT_EQ(1, d.filtered);
}

TEST(Dialog, EscapeCancelsAndEnterPressesTheDefaultButton) {
  for (auto [key, result] : {std::pair{VK_ESCAPE, IDCANCEL}, std::pair{VK_RETURN, IDOK}}) {
    ScaleDialog d;
    d.atIdle = [key = key](ScaleDialog& self) {
      self.GetDlgItem(1001)->SetFocus();
      ::PostMessage(::GetDlgItem(self.m_hWnd, 1001), WM_KEYDOWN, WPARAM(key), 1);
    };
    EXPECT_EQ(result, d.DoModal()) << key;
  }
}

TEST(Dialog, EscapeCancelsOutOfAMultilineEditToo) {
  ScaleDialog d;
  d.atIdle = [](ScaleDialog& self) {
    ::PostMessage(::GetDlgItem(self.m_hWnd, 1008), WM_KEYDOWN, VK_ESCAPE, 1);
  };
  EXPECT_EQ(IDCANCEL, d.DoModal());
}

TEST(Dialog, IsCentredWhenItsTemplateGivesNoPosition) {
  ScaleDialog d;
  CRect rect, work;
  d.atIdle = [&](ScaleDialog& self) {
    self.GetWindowRect(rect);
    Press(self, IDOK);
  };
  d.DoModal();
  ::SystemParametersInfo(SPI_GETWORKAREA, 0, static_cast<RECT*>(work), 0);
  EXPECT_NEAR(work.CenterPoint().x, rect.CenterPoint().x, 1);
  EXPECT_NEAR(work.CenterPoint().y, rect.CenterPoint().y, 1);
}

TEST(Dialog, AModelessOneIsDestroyedWithItsObject) {
  HWND handle;
  {
    ScaleDialog d;
    ASSERT_TRUE(d.Create(100));
    handle = d.m_hWnd;
    EXPECT_EQ(&d, CWnd::FromHandlePermanent(handle));
    CString title;
    d.GetWindowText(title);
    EXPECT_STREQ(L"设置当前比例", title);
  }
  EXPECT_FALSE(::IsWindow(handle));
}

TEST(Dialog, CommandsGoToItsMapFirst) {
  ScaleDialog d;
  ASSERT_TRUE(d.Create(100));
  d.SendMessage(WM_COMMAND, 40000);
  EXPECT_EQ(1, d.commands);
}

TEST(Dialog, AQuitMessageEndsTheLoopAndIsPassedOn) {
  TestWindow owner;
  ASSERT_TRUE(owner.Make());
  ScaleDialog d(&owner);
  d.atIdle = [](ScaleDialog&) { ::PostQuitMessage(5); };
  EXPECT_EQ(-1, d.DoModal());
  EXPECT_TRUE(owner.IsWindowEnabled());
  MSG message;
  ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(5u, message.wParam);
}
