// The hover-aware button as a real window: capture, focus, tip, drawing, handles.
#include <gtest/gtest.h>

#include <functional>
#include <type_traits>

#include "afxwin.h"
#include "dialogs/win/button_st.h"

namespace {

class TestButton : public CButtonST {
 public:
  CToolTipCtrl* Tip() const { return m_pToolTip.get(); }
  CSize ImageSize() const { return CSize(m_cxImage, m_cyImage); }
};

class ClickCounter : public CWnd {
 public:
  int clicks = 0;
  std::function<void()> onPaint;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_PAINT && onPaint) onPaint();
    return CWnd::WindowProc(message, wParam, lParam);
  }
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    if (HIWORD(wParam) == BN_CLICKED) ++clicks;
    return CWnd::OnCommand(wParam, lParam);
  }
};

class ButtonWindow : public testing::Test {
 protected:
  ButtonWindow() {
    parent.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP,
                    CRect(100, 100, 300, 200), nullptr, 0);
    button.Create(L"按钮", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(10, 10, 90, 40), &parent,
                  7);
  }
  ~ButtonWindow() override {
    ::ReleaseCapture();
    button.DestroyWindow();
    parent.DestroyWindow();
  }
  void Move(int x, int y, WPARAM keys = 0) {
    button.SendMessage(WM_MOUSEMOVE, keys, MAKELPARAM(x, y));
  }
  COLORREF Draw(int x, int y, UINT state) {
    const qvx::OwnedMemoryDc memory(::CreateCompatibleDC(nullptr));
    HDC screen = ::GetDC(nullptr);
    const qvx::OwnedBitmap bitmap(::CreateCompatibleBitmap(screen, 80, 30));
    ::ReleaseDC(nullptr, screen);
    qvx::SelectedObject selected(memory.Get(), bitmap.Get());
    DRAWITEMSTRUCT draw{};
    draw.hDC = memory.Get();
    draw.rcItem = {0, 0, 80, 30};
    draw.itemState = state;
    button.DrawItem(&draw);
    return ::GetPixel(memory.Get(), x, y);
  }
  ClickCounter parent;
  TestButton button;
};

TEST_F(ButtonWindow, IsAlwaysOwnerDrawn) {
  EXPECT_EQ(button.GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
}

TEST_F(ButtonWindow, TakesTheCaptureWhenThePointerEntersAndReleasesItWhenItLeaves) {
  Move(5, 5);
  EXPECT_EQ(::GetCapture(), button.m_hWnd);
  EXPECT_TRUE(button.IsMouseOn());
  Move(-5, 5);
  EXPECT_EQ(::GetCapture(), nullptr);
  EXPECT_FALSE(button.IsMouseOn());
}

TEST_F(ButtonWindow, APressThatBeganElsewhereAndIsDraggedOverItDoesNotLightIt) {
  Move(5, 5, MK_LBUTTON);
  EXPECT_FALSE(button.IsMouseOn());
  EXPECT_NE(::GetCapture(), button.m_hWnd);
  Move(5, 5);
  EXPECT_TRUE(button.IsMouseOn()) << "once the press is over, the next move does";
}

TEST_F(ButtonWindow, KeepsTheCaptureWhileAPressIsDraggedOff) {
  Move(5, 5);
  Move(-5, 5, MK_LBUTTON);
  EXPECT_EQ(::GetCapture(), button.m_hWnd);
  EXPECT_FALSE(button.IsMouseOn());
}

TEST_F(ButtonWindow, APressReleasedOutsideIsNoClickAndLeavesNoHover) {
  const auto press = [this] { button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)); };
  Move(5, 5);
  press();
  button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(parent.clicks, 1) << "released inside";
  Move(5, 5);
  press();
  Move(-5, 5, MK_LBUTTON);
  EXPECT_EQ(::GetCapture(), button.m_hWnd);
  button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-5, 5));
  EXPECT_EQ(parent.clicks, 1);
  EXPECT_FALSE(button.IsMouseOn());
  EXPECT_EQ(Draw(0, 15, 0), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(ButtonWindow, LosingTheFocusEndsTheHover) {
  Move(5, 5);
  button.SendMessage(WM_KILLFOCUS);
  EXPECT_FALSE(button.IsMouseOn());
}

TEST_F(ButtonWindow, LosingTheCaptureReleasesItAndKeepsTheFlag) {
  Move(5, 5);
  parent.SetCapture();
  EXPECT_EQ(::GetCapture(), nullptr) << "it is taken from the new owner too";
  EXPECT_TRUE(button.IsMouseOn());
}

TEST_F(ButtonWindow, ASecondTipTextChangesNothing) {
  button.SetTooltipText(L"第一");
  button.SetTooltipText(L"第二");
  ASSERT_NE(button.Tip(), nullptr);
  CString text;
  button.Tip()->GetText(text, &button);
  EXPECT_EQ(text, L"第一");
  EXPECT_EQ(button.Tip()->SendMessage(TTM_GETMAXTIPWIDTH), 200);
  EXPECT_EQ(button.Tip()->SendMessage(TTM_GETDELAYTIME, TTDT_INITIAL), 500);
}

TEST_F(ButtonWindow, OwnsItsBitmapsAndDoesNotFreeASharedOne) {
  const int before = qvx::OwnedBitmap::Alive();
  const qvx::OwnedBitmap shared(::CreateBitmap(16, 16, 1, 1, nullptr));
  button.SetBitmaps(::CreateBitmap(16, 16, 1, 1, nullptr), nullptr, 16, 16);
  EXPECT_EQ(qvx::OwnedBitmap::Alive(), before + 2);
  button.ShareBitmap(shared.Get(), 16, 16);
  EXPECT_EQ(qvx::OwnedBitmap::Alive(), before + 1);
  EXPECT_EQ(button.ShownBitmap(), shared.Get());
}

TEST_F(ButtonWindow, AnImageSetBeforeTheWindowExistsDoesNotRedrawTheScreen) {
  parent.ShowWindow(SW_SHOWNOACTIVATE);
  parent.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  ASSERT_FALSE(::GetUpdateRect(parent.m_hWnd, nullptr, FALSE));
  int painted = 0;
  parent.onPaint = [&painted] { ++painted; };
  TestButton early;
  early.SetBitmaps(nullptr, nullptr, 16, 16);
  early.ShareBitmap(nullptr, 12, 12);
  EXPECT_EQ(painted, 0);
  EXPECT_FALSE(::GetUpdateRect(parent.m_hWnd, nullptr, FALSE));
}

TEST_F(ButtonWindow, ImageSizesAreHeldInEightBits) {
  using Size = BYTE;
  EXPECT_TRUE((std::is_same_v<decltype(&CButtonST::SetBitmaps),
                              void (CButtonST::*)(HBITMAP, HBITMAP, Size, Size)>));
  button.SetBitmaps(nullptr, nullptr, 255, 254);
  EXPECT_EQ(button.ImageSize(), CSize(255, 254));
  const int tooLarge = 256 + 16;
  button.SetBitmaps(nullptr, nullptr, static_cast<Size>(tooLarge), 16);
  EXPECT_EQ(button.ImageSize(), CSize(16, 16)) << "only the low eight bits are left of it";
}

TEST_F(ButtonWindow, AFlatButtonShowsItsLinesOnlyUnderThePointerOrPressed) {
  EXPECT_EQ(Draw(0, 15, 0), ::GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(Draw(0, 15, ODS_SELECTED), ::GetSysColor(COLOR_BTNSHADOW));
  Move(5, 5);
  EXPECT_EQ(Draw(0, 15, 0), ::GetSysColor(COLOR_BTNHIGHLIGHT));
}

TEST_F(ButtonWindow, ANonFlatButtonHasADoubleFrameAndABlackOneWithTheFocus) {
  button.SetFlat(0);
  EXPECT_EQ(Draw(0, 15, 0), ::GetSysColor(COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(Draw(1, 15, 0), ::GetSysColor(COLOR_3DLIGHT));
  EXPECT_EQ(Draw(79, 15, 0), ::GetSysColor(COLOR_3DDKSHADOW));
  EXPECT_EQ(Draw(78, 15, 0), ::GetSysColor(COLOR_BTNSHADOW));
  EXPECT_EQ(Draw(0, 15, ODS_FOCUS), RGB(0, 0, 0));
  EXPECT_EQ(Draw(79, 15, ODS_SELECTED), ::GetSysColor(COLOR_BTNSHADOW));
}

TEST_F(ButtonWindow, SettingNoCursorSucceedsAndAMissingResourceFails) {
  EXPECT_TRUE(button.SetBtnCursor(-1));
  EXPECT_FALSE(button.SetBtnCursor(31999)) << "no such resource";
}

}  // namespace
