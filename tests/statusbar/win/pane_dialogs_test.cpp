// The two dialogs of the panes as real windows: controls, OK, Cancel, invalid input.
#include "devhost/core/host/host.h"
#include "kernel/drawing_scale.h"
#include "kernel/globals.h"
#include "resources/resource_ids.h"
#include "statusbar/win/dyn_input_dialog.h"
#include "statusbar/win/scale_dialog.h"
#include "statusbar/win/scale_pane.h"
#include "tests/statusbar/win/bar_host.h"

namespace {

std::wstring TextOf(HWND dialog, int id) {
  wchar_t text[100] = L"";
  ::GetDlgItemTextW(dialog, id, text, 100);
  return text;
}

std::wstring TextOf(HWND window) {
  wchar_t text[100] = L"";
  ::GetWindowTextW(window, text, 100);
  return text;
}

void Press(HWND dialog, int id) { ::SendMessageW(dialog, WM_COMMAND, id, 0); }

class PaneDialogs : public BarTest {
 protected:
  // Types a scale into the dialog and presses a button; true if the dialog ended with OK.
  static bool EnterScale(const wchar_t* text, int button) {
    const ModalGuest guest([=] {
      const HWND dialog = VisibleDialog();
      if (!dialog) return false;
      ::SetDlgItemTextW(dialog, IDC_SCALE, text);
      Press(dialog, button);
      return true;
    });
    return ShowScaleDialog();
  }
  // Types a scale that is refused; true if the dialog is open after the message. Then it is
  // cancelled.
  bool StaysAfter(const wchar_t* text) {
    HWND scaleDialog = nullptr;
    bool stayed = false;
    const ModalGuest guest([&] {
      const HWND dialog = VisibleDialog(scaleDialog);
      if (!scaleDialog && dialog) {
        scaleDialog = dialog;
        ::SetDlgItemTextW(dialog, IDC_SCALE, text);
        ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
      } else if (dialog) {  // the message box
        ::PostMessageW(::FindWindowExW(dialog, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
      } else if (scaleDialog && !Journal("messagebox").empty()) {
        stayed = ::IsWindowVisible(scaleDialog) != FALSE;
        Press(scaleDialog, IDCANCEL);
        return true;
      }
      return false;
    });
    return !ShowScaleDialog() && stayed;
  }
  // Opens the other dialog, reads the choice, makes another unless -1, and presses the button.
  static int EnterFields(int choice, int button) {
    int shown = -1;
    const ModalGuest guest([&, choice, button] {
      const HWND dialog = VisibleDialog();
      if (!dialog) return false;
      for (int i = 0; i < 3; ++i)
        if (::IsDlgButtonChecked(dialog, IDC_DYN_FIELDS + i)) shown = i;
      if (choice >= 0)
        ::CheckRadioButton(dialog, IDC_DYN_FIELDS, IDC_DYN_FIELDS_ALL, IDC_DYN_FIELDS + choice);
      Press(dialog, button);
      return true;
    });
    ShowDynInputDialog();
    return shown;
  }
};

}  // namespace

TEST_F(PaneDialogs, TheScaleDialogShowsTheScaleInForce) {
  std::wstring title, label, value;
  const ModalGuest guest([&] {
    const HWND dialog = VisibleDialog();
    if (!dialog) return false;
    title = TextOf(dialog);
    label = TextOf(::FindWindowExW(dialog, nullptr, L"Static", nullptr));
    value = TextOf(dialog, 1175);
    Press(dialog, IDCANCEL);
    return true;
  });
  EXPECT_FALSE(ShowScaleDialog());
  EXPECT_EQ(title, L"设置当前比例");
  EXPECT_EQ(label, L"当前比例:");
  EXPECT_EQ(value, L"100");
}

TEST_F(PaneDialogs, OkSetsTheScaleAndCancelDoesNot) {
  EXPECT_TRUE(EnterScale(L"75", IDOK));
  EXPECT_EQ(ScaleOfDrawing(), 75);
  EXPECT_FALSE(EnterScale(L"20", IDCANCEL));
  EXPECT_EQ(ScaleOfDrawing(), 75);
}

TEST_F(PaneDialogs, ZeroAndLessAreIgnoredByTheDrawingAndKeptByPaperSpace) {
  for (const wchar_t* text : {L"0", L"-5"}) {
    EXPECT_TRUE(EnterScale(text, IDOK));
    EXPECT_EQ(ScaleOfDrawing(), 100);
  }
  SetVariable(L"TILEMODE", L"0");
  EXPECT_TRUE(EnterScale(L"0", IDOK));
  EXPECT_EQ(DocGetPScale(), 0);
  EXPECT_TRUE(EnterScale(L"-5", IDOK));
  EXPECT_EQ(DocGetPScale(), -5);
  EXPECT_EQ(ScaleOfDrawing(), 100);
}

TEST_F(PaneDialogs, InvalidInputShowsAMessageAndKeepsTheDialogOpen) {
  for (const wchar_t* text : {L"一百", L"1e999", L"nan", L"inf", L"0x10"}) {
    StartJournal();
    EXPECT_TRUE(StaysAfter(text)) << text;
    EXPECT_EQ(Journal("messagebox").size(), 1u) << text;
    EXPECT_EQ(ScaleOfDrawing(), 100) << text;
  }
}

TEST_F(PaneDialogs, PaperSpaceRefusesInfinityToo) {
  SetVariable(L"TILEMODE", L"0");
  const double before = DocGetPScale();
  EXPECT_TRUE(StaysAfter(L"1e999"));
  EXPECT_EQ(DocGetPScale(), before);
}

TEST_F(PaneDialogs, TheLastLineOfTheScaleMenuOpensTheScaleDialog) {
  struct Pane : TPScalePane {
    UINT DisplayPopupPaneMenu(CMenu&) override { return ID_SCALE_OTHER; }
  } pane;
  SetVariable(L"HPSCALE", L"1");
  for (const bool ok : {false, true}) {
    const ModalGuest guest([=] {
      const HWND dialog = VisibleDialog();
      if (!dialog) return false;
      ::SetDlgItemTextW(dialog, IDC_SCALE, L"33.5");
      Press(dialog, ok ? IDOK : IDCANCEL);
      return true;
    });
    pane.OnLButtonDown(0, CPoint(0, 0));
    EXPECT_EQ(ScaleOfDrawing(), ok ? 33.5 : 100);
    EXPECT_EQ(std::stod(Variable(L"HPSCALE")), ok ? 33.5 : 1) << "cancel ends the click";
  }
}

TEST_F(PaneDialogs, TheDynamicInputDialogShowsTheFieldsAndOkStoresThem) {
  const struct {
    int before, shown, choice, after;
  } kRows[] = {{1, 0, -1, 1}, {2, 1, -1, 2}, {10, 2, -1, 10}, {7, 2, -1, 10},
               {10, 2, 0, 1}, {1, 0, 1, 2},  {2, 1, 2, 10}};
  for (const auto& row : kRows) {
    QvxGeLib::g_iMaxDynDimNum = row.before;
    EXPECT_EQ(EnterFields(row.choice, IDOK), row.shown) << row.before;
    EXPECT_EQ(QvxGeLib::g_iMaxDynDimNum, row.after) << row.before;
  }
  QvxGeLib::g_iMaxDynDimNum = 7;
  EnterFields(0, IDCANCEL);
  EXPECT_EQ(QvxGeLib::g_iMaxDynDimNum, 7);
}

TEST_F(PaneDialogs, TheDynamicInputDialogHasItsTitleAndChoices) {
  std::wstring title, first, second, all;
  const ModalGuest guest([&] {
    const HWND dialog = VisibleDialog();
    if (!dialog) return false;
    title = TextOf(dialog);
    first = TextOf(dialog, 1172);
    second = TextOf(dialog, 1173);
    all = TextOf(dialog, 1174);
    Press(dialog, IDCANCEL);
    return true;
  });
  ShowDynInputDialog();
  EXPECT_EQ(title, L"动态输入设置");
  EXPECT_EQ(first, L"每次只显示第一个标注输入字段");
  EXPECT_EQ(second, L"每次只显示前两个标注输入字段");
  EXPECT_EQ(all, L"显示所有标注输入字段");
}

TEST_F(PaneDialogs, TheCurrentResourcesAreRestored) {
  const HINSTANCE before = AfxGetResourceHandle();
  AfxSetResourceHandle(::GetModuleHandleW(L"user32.dll"));
  EnterScale(L"5", IDCANCEL);
  EnterFields(-1, IDCANCEL);
  EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"));
  AfxSetResourceHandle(before);
}
