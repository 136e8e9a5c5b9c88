// Controls: the messages that each class sends to its control.
#include "test_app.h"

namespace {
struct Controls : testing::Test {
  TestWindow w;
  void SetUp() override { ASSERT_TRUE(w.Make()); }
};
const CRect kBox(0, 0, 100, 60);
}  // namespace

TEST_F(Controls, AnEditSelectsReplacesAndCountsLines) {
  CEdit edit;
  ASSERT_TRUE(
      edit.Create(WS_CHILD | ES_MULTILINE | ES_AUTOHSCROLL | ES_WANTRETURN, kBox, &w, 6000));
  edit.SetWindowText(L"one\r\ntwo");
  EXPECT_FALSE(edit.GetModify());
  EXPECT_EQ(2, edit.GetLineCount());
  EXPECT_EQ(1, edit.LineFromChar(6));
  edit.SetSel(0, 3);
  int start = -1, end = -1;
  edit.GetSel(start, end);
  EXPECT_EQ(0, start);
  EXPECT_EQ(3, end);
  edit.ReplaceSel(L"墙");
  EXPECT_TRUE(edit.GetModify());
  CString text;
  edit.GetWindowText(text);
  EXPECT_STREQ(L"墙\r\ntwo", text);
  wchar_t line[8] = L"";
  EXPECT_EQ(3, edit.GetLine(1, line, 8));
  EXPECT_EQ(0, std::wcsncmp(L"two", line, 3));
  edit.SetSel(0, -1);
  EXPECT_EQ(MAKELONG(0, 6), LONG(edit.GetSel()));
}

TEST_F(Controls, AListBoxKeepsRowsWithData) {
  CListBox list;
  ASSERT_TRUE(list.Create(WS_CHILD, kBox, &w, 1));
  EXPECT_EQ(0, list.AddString(L"甲"));
  EXPECT_EQ(1, list.AddString(L"long enough a text"));
  list.SetItemData(1, 77);
  EXPECT_EQ(77u, list.GetItemData(1));
  EXPECT_EQ(1, list.SetCurSel(1));
  CString text(L"x");
  list.GetText(1, text);
  EXPECT_STREQ(L"long enough a text", text);
  list.GetText(9, text);
  EXPECT_TRUE(text.IsEmpty());
  list.ResetContent();
  EXPECT_EQ(0, list.GetCount());
}

TEST_F(Controls, AnOwnerDrawnListBoxMeasuresItself) {
  struct Tall : CListBox {
    int measured = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
      ++measured;
      item->itemHeight = 33;
    }
  } list;
  ASSERT_TRUE(list.Create(WS_CHILD | LBS_OWNERDRAWFIXED, kBox, &w, 1));
  EXPECT_EQ(1, list.measured);
  EXPECT_EQ(33, list.SendMessage(LB_GETITEMHEIGHT));
}

TEST_F(Controls, AComboBoxFindsItsRows) {
  CComboBox box;
  ASSERT_TRUE(box.Create(WS_CHILD | CBS_DROPDOWNLIST, kBox, &w, 1));
  box.AddString(L"a");
  box.AddString(L"b");
  EXPECT_EQ(1, box.FindStringExact(-1, L"b"));
  EXPECT_EQ(1, box.SelectString(-1, L"b"));
  EXPECT_EQ(1, box.GetCurSel());
  CString text;
  box.GetLBText(0, text);
  EXPECT_STREQ(L"a", text);
}

TEST_F(Controls, ACheckBoxKeepsItsState) {
  CButton button;
  ASSERT_TRUE(button.Create(L"x", WS_CHILD | BS_AUTOCHECKBOX, kBox, &w, 1));
  button.SetCheck(1);
  EXPECT_EQ(1, button.GetCheck());
  EXPECT_EQ(UINT(BS_AUTOCHECKBOX), button.GetButtonStyle());
}

TEST_F(Controls, ASpinButtonReportsItsRange) {
  CSpinButtonCtrl spin;
  ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_HORZ, CRect(0, 0, 40, 20), &w, 1));
  spin.SetRange(0, 7);
  spin.SetPos(3);
  int low = -1, high = -1;
  spin.GetRange(low, high);
  EXPECT_EQ(0, low);
  EXPECT_EQ(7, high);
  EXPECT_EQ(3, LOWORD(spin.GetPos()));
  EXPECT_EQ(3, spin.SetPos(9));
  EXPECT_EQ(7, LOWORD(spin.GetPos()));
}

TEST_F(Controls, AnImageListCountsItsPictures) {
  CImageList list;
  ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 4));
  CClientDC dc(&w);
  CBitmap strip;
  ASSERT_TRUE(strip.CreateCompatibleBitmap(&dc, 48, 16));
  EXPECT_EQ(0, list.Add(&strip, RGB(192, 192, 192)));
  EXPECT_EQ(3, list.GetImageCount());
  EXPECT_TRUE(list.DeleteImageList());
  EXPECT_FALSE(list.DeleteImageList());
}
