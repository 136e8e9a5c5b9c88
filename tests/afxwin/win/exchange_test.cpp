// DDX and DDV: each type of value to its control and back, and the handling of invalid input.
#include "test_app.h"

namespace {
class ExchangeDialog : public CDialog {
 public:
  int number = 0, checked = 0, radio = 0, index = 0, low = 1, high = 10;
  CString text;
  CEdit edit;
  bool range = false, maximum = false;
  int changes = 0;

 protected:
  void DoDataExchange(CDataExchange* pDX) override {
    DDX_Control(pDX, 1002, edit);
    DDX_Text(pDX, 1001, number);
    if (range) DDV_MinMaxInt(pDX, number, low, high);
    DDX_Text(pDX, 1002, text);
    if (maximum) DDV_MaxChars(pDX, text, 4);
    DDX_Check(pDX, 1003, checked);
    DDX_Radio(pDX, 1004, radio);
    DDX_CBIndex(pDX, 1007, index);
  }
  BOOL OnInitDialog() override {
    auto* box = static_cast<CComboBox*>(GetDlgItem(1007));
    for (LPCTSTR row : {L"a", L"b", L"c"}) box->AddString(row);
    return CDialog::OnInitDialog();
  }
  void OnChange() { ++changes; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ExchangeDialog, CDialog)
ON_EN_CHANGE(1001, OnChange)
END_MESSAGE_MAP()

struct Exchange : testing::Test {
  ExchangeDialog d;
  void SetUp() override {
    App().boxes.clear();
    ASSERT_TRUE(d.Create(100));
  }
};
}  // namespace

TEST_F(Exchange, ShowsEachValueInItsControl) {
  d.number = -12;
  d.text = L"比例";
  d.checked = 1;
  d.radio = 2;
  d.index = 1;
  ASSERT_TRUE(d.UpdateData(FALSE));
  CString shown;
  d.GetDlgItemText(1001, shown);
  EXPECT_STREQ(L"-12", shown);
  d.GetDlgItemText(1002, shown);
  EXPECT_STREQ(L"比例", shown);
  EXPECT_EQ(UINT(BST_CHECKED), d.IsDlgButtonChecked(1003));
  EXPECT_EQ(UINT(BST_UNCHECKED), d.IsDlgButtonChecked(1004));
  EXPECT_EQ(UINT(BST_CHECKED), d.IsDlgButtonChecked(1006));
  EXPECT_EQ(1, d.SendDlgItemMessage(1007, CB_GETCURSEL));
}

TEST_F(Exchange, ReadsEachControlBack) {
  d.SetDlgItemText(1001, L" 2147483647 ");
  d.SetDlgItemText(1002, L"xyz");
  d.CheckDlgButton(1003, BST_CHECKED);
  d.CheckRadioButton(1004, 1006, 1005);
  d.SendDlgItemMessage(1007, CB_SETCURSEL, 2);
  ASSERT_TRUE(d.UpdateData(TRUE));
  EXPECT_EQ(2147483647, d.number);
  EXPECT_STREQ(L"xyz", d.text);
  EXPECT_EQ(1, d.checked);
  EXPECT_EQ(1, d.radio);
  EXPECT_EQ(2, d.index);
}

TEST_F(Exchange, NoRadioButtonChosenReadsMinusOne) {
  for (int id : {1004, 1005, 1006}) d.CheckDlgButton(id, BST_UNCHECKED);
  ASSERT_TRUE(d.UpdateData(TRUE));
  EXPECT_EQ(-1, d.radio);
}

TEST_F(Exchange, RefusesTextThatIsNotAnInteger) {
  for (LPCTSTR wrong : {L"", L"12a", L"1.5", L"2147483648"}) {
    App().boxes.clear();
    d.number = 3;
    d.SetDlgItemText(1001, wrong);
    EXPECT_FALSE(d.UpdateData(TRUE)) << wrong;
    EXPECT_EQ(3, d.number);
    EXPECT_EQ(1u, App().boxes.size());
  }
}

TEST_F(Exchange, RefusesANumberOutOfRangeWithAMessageOfBothLimits) {
  d.range = true;
  d.SetDlgItemText(1001, L"11");
  EXPECT_FALSE(d.UpdateData(TRUE));
  ASSERT_EQ(1u, App().boxes.size());
  EXPECT_EQ(L"请输入一个在 1 和 10 之间的整数。", App().boxes[0]);
  d.SetDlgItemText(1001, L"10");
  EXPECT_TRUE(d.UpdateData(TRUE));
}

TEST_F(Exchange, ShowsAValueOutOfRangeWithoutAMessage) {
  d.range = true;
  d.number = 99;
  EXPECT_TRUE(d.UpdateData(FALSE));
  EXPECT_TRUE(App().boxes.empty());
}

TEST_F(Exchange, LimitsTheLengthOfTypedText) {
  d.maximum = true;
  ASSERT_TRUE(d.UpdateData(FALSE));
  EXPECT_EQ(4u, d.edit.GetLimitText());
  d.SetDlgItemText(1002, L"12345");
  EXPECT_FALSE(d.UpdateData(TRUE));
}

TEST_F(Exchange, SubclassesItsControlsOnceAndDetachesThemWithTheDialog) {
  EXPECT_EQ(&d.edit, d.GetDlgItem(1002));
  EXPECT_TRUE(d.UpdateData(FALSE));
  d.DestroyWindow();
  EXPECT_EQ(nullptr, d.edit.m_hWnd);
}

TEST_F(Exchange, FillingAControlSendsNoChangeNotification) {
  d.changes = 0;
  d.number = 4711;
  d.UpdateData(FALSE);
  EXPECT_EQ(0, d.changes);
  d.SetDlgItemText(1001, L"5");
  EXPECT_EQ(1, d.changes);
}
