// The dialog of EATTEDIT: what it shows, what OK and Cancel return, the keys.
#include <gtest/gtest.h>

#include "afxwin.h"

#include <commctrl.h>

#include <functional>
#include <utility>

#include "devhost/ui/frame/attribute_dialog.h"
#include "devhost/ui/frame/host_ui_impl.h"

using namespace devhost;

namespace {

std::function<void(HWND)> g_whenOpen;

LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == MSGF_DIALOGBOX && g_whenOpen) {
    const HWND dialog = ::GetAncestor(reinterpret_cast<MSG*>(lParam)->hwnd, GA_ROOT);
    std::exchange(g_whenOpen, nullptr)(dialog);
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

std::wstring Cell(HWND dialog, int row, int column) {
  wchar_t text[64] = {};
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = 64;
  ::SendDlgItemMessageW(dialog, AttributeDialog::kList, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
  return text;
}

std::wstring Box(HWND dialog) {
  wchar_t text[64] = {};
  ::GetDlgItemTextW(dialog, AttributeDialog::kValue, text, 64);
  return text;
}

// Types at the selection of the box.
void Type(HWND dialog, const wchar_t* text) {
  ::SendDlgItemMessageW(dialog, AttributeDialog::kValue, EM_REPLACESEL, TRUE,
                        reinterpret_cast<LPARAM>(text));
}

void SelectRow(HWND dialog, int row) {
  LVITEMW item{};
  item.state = item.stateMask = LVIS_SELECTED;
  ::SendDlgItemMessageW(dialog, AttributeDialog::kList, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
}

void Press(HWND dialog, int id) {
  ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

void PressKey(HWND dialog, WPARAM key) {
  ::PostMessageW(::GetDlgItem(dialog, AttributeDialog::kValue), WM_KEYDOWN, key, 1);
}

class AttributeDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    m_hook = ::SetWindowsHookExW(WH_MSGFILTER, OnHook, nullptr, ::GetCurrentThreadId());
    values = {{L"NUMBER", L"门编号", L"M1"}, {L"WIDTH", L"", L"900"}};
  }
  void TearDown() override { ::UnhookWindowsHookEx(m_hook); }
  bool Edit(std::function<void(HWND)> act) {
    g_whenOpen = std::move(act);
    return TheHostUi().EditAttributes(L"门", values);
  }

  std::vector<AttributeValue> values;

 private:
  HHOOK m_hook = nullptr;
};

}  // namespace

TEST_F(AttributeDialogTest, ShowsTagsPromptsAndValues) {
  bool seen = false;
  EXPECT_FALSE(Edit([&](HWND dialog) {
    seen = true;
    wchar_t block[64] = {};
    ::GetDlgItemTextW(dialog, AttributeDialog::kBlock, block, 64);
    EXPECT_STREQ(L"块: 门", block);
    EXPECT_EQ(2, ::SendDlgItemMessageW(dialog, AttributeDialog::kList, LVM_GETITEMCOUNT, 0, 0));
    EXPECT_EQ(L"NUMBER", Cell(dialog, 0, AttributeDialog::kTagColumn));
    EXPECT_EQ(L"门编号", Cell(dialog, 0, AttributeDialog::kPromptColumn));
    EXPECT_EQ(L"M1", Cell(dialog, 0, AttributeDialog::kValueColumn));
    EXPECT_EQ(L"900", Cell(dialog, 1, AttributeDialog::kValueColumn));
    EXPECT_EQ(L"M1", Box(dialog));
    EXPECT_EQ(::GetDlgItem(dialog, AttributeDialog::kValue), ::GetFocus());
    Press(dialog, IDCANCEL);
  }));
  EXPECT_TRUE(seen);
}

TEST_F(AttributeDialogTest, OkReturnsTheValuesOfAllRows) {
  EXPECT_TRUE(Edit([](HWND dialog) {
    Type(dialog, L"M7 左");
    EXPECT_EQ(L"M7 左", Cell(dialog, 0, AttributeDialog::kValueColumn));
    SelectRow(dialog, 1);
    EXPECT_EQ(L"900", Box(dialog));
    Type(dialog, L"");
    SelectRow(dialog, 0);
    EXPECT_EQ(L"M7 左", Box(dialog));
    Press(dialog, IDOK);
  }));
  EXPECT_EQ(L"M7 左", values[0].value);
  EXPECT_EQ(L"", values[1].value);
  EXPECT_EQ(L"NUMBER", values[0].tag);
}

TEST_F(AttributeDialogTest, CancelChangesNothing) {
  EXPECT_FALSE(Edit([](HWND dialog) {
    Type(dialog, L"M7");
    Press(dialog, IDCANCEL);
  }));
  EXPECT_EQ(L"M1", values[0].value);
}

TEST_F(AttributeDialogTest, EnterIsOkAndEscapeIsCancel) {
  EXPECT_TRUE(Edit([](HWND dialog) {
    Type(dialog, L"M8");
    PressKey(dialog, VK_RETURN);
  }));
  EXPECT_EQ(L"M8", values[0].value);
  EXPECT_FALSE(Edit([](HWND dialog) {
    Type(dialog, L"M9");
    PressKey(dialog, VK_ESCAPE);
  }));
  EXPECT_EQ(L"M8", values[0].value);
}
