// Tool tips: the control's own class, and tips for parts of a window by OnToolHitTest.
#include "test_app.h"

#include <cstdlib>

TEST(ToolTip, KeepsTheTextOfEachTool) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  CButton button;
  ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &w, 1));
  CToolTipCtrl tip;
  ASSERT_TRUE(tip.Create(&button, TTS_ALWAYSTIP));
  EXPECT_TRUE(tip.AddTool(&button, L"画一段墙"));
  EXPECT_TRUE(tip.AddTool(&w, L"second", CRect(60, 0, 90, 20), 5));
  EXPECT_EQ(2, tip.GetToolCount());
  CString text;
  tip.GetText(text, &button);
  EXPECT_STREQ(L"画一段墙", text);
  tip.UpdateTipText(L"new", &w, 5);
  tip.GetText(text, &w, 5);
  EXPECT_STREQ(L"new", text);
  tip.DelTool(&button);
  EXPECT_EQ(1, tip.GetToolCount());
}

TEST(ToolTip, KeepsItsWidthAndDelay) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  CToolTipCtrl tip;
  ASSERT_TRUE(tip.Create(&w));
  tip.SetMaxTipWidth(200);
  tip.SetDelayTime(TTDT_INITIAL, 500);
  EXPECT_EQ(200, tip.GetMaxTipWidth());
  EXPECT_EQ(500, tip.GetDelayTime(TTDT_INITIAL));
}

namespace {
// Two adjacent parts, 50 pixels wide each; no part elsewhere.
class Strip : public TestWindow {
 public:
  mutable int asked = 0;
  INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override {
    ++asked;
    int part = point.x / 50;
    if (point.x < 0 || part > 1) return -1;
    if (!pTI) return part;
    pTI->hwnd = m_hWnd;
    pTI->uId = UINT_PTR(part);
    pTI->uFlags |= TTF_ALWAYSTIP;
    pTI->rect = CRect(part * 50, 0, part * 50 + 50, 100);
    pTI->lpszText = static_cast<LPTSTR>(std::calloc(256, sizeof(TCHAR)));
    lstrcpy(pTI->lpszText, part ? L"第二" : L"第一");
    return part;
  }
};

HWND TipOf(HWND owner) {
  for (HWND tip = nullptr; (tip = ::FindWindowEx(nullptr, tip, TOOLTIPS_CLASS, nullptr));)
    if (::GetWindow(tip, GW_OWNER) == owner) return tip;
  return nullptr;
}

std::wstring TipText(CWnd& w, int part) {
  wchar_t text[256] = L"";
  TOOLINFO info{};
  info.cbSize = sizeof info;
  info.hwnd = w.m_hWnd;
  info.uId = UINT_PTR(part);
  info.lpszText = text;
  ::SendMessage(TipOf(w.m_hWnd), TTM_GETTEXT, 256, reinterpret_cast<LPARAM>(&info));
  return text;
}

void MovePointer(CWnd& w, int x) {
  CPoint screen(x, 5);
  w.ClientToScreen(&screen);
  MSG message{w.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(x, 5), 0, screen};
  CWnd::WalkPreTranslateTree(nullptr, &message);
}

LRESULT ToolCount(CWnd& w) { return ::SendMessage(TipOf(w.m_hWnd), TTM_GETTOOLCOUNT, 0, 0); }
}  // namespace

TEST(ToolHitTest, IsNotCalledUntilToolTipsAreEnabled) {
  Strip w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  MovePointer(w, 10);
  EXPECT_EQ(0, w.asked);
  EXPECT_FALSE(w.EnableToolTips());
  EXPECT_TRUE(w.EnableToolTips());
}

TEST(ToolHitTest, ThePartUnderThePointerIsTheOnlyTool) {
  Strip w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  w.EnableToolTips();
  MovePointer(w, 10);
  ASSERT_NE(nullptr, TipOf(w.m_hWnd));
  EXPECT_EQ(1, ToolCount(w));
  EXPECT_EQ(L"第一", TipText(w, 0));
  MovePointer(w, 60);
  EXPECT_EQ(1, ToolCount(w));
  EXPECT_EQ(L"第二", TipText(w, 1));
  MovePointer(w, 150);
  EXPECT_EQ(0, ToolCount(w));
}

TEST(ToolHitTest, APressedKeyHidesTheTip) {
  Strip w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  w.EnableToolTips();
  MovePointer(w, 10);
  EXPECT_EQ(1, ToolCount(w));
  MSG key{w.m_hWnd, WM_KEYDOWN, VK_SPACE, 0, 0, {}};
  CWnd::WalkPreTranslateTree(nullptr, &key);
  EXPECT_EQ(0, ToolCount(w));
}

TEST(ToolHitTest, WorksForTheNextWindowAfterTheFirstIsDestroyed) {
  {
    Strip first;
    ASSERT_TRUE(first.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
    first.EnableToolTips();
    MovePointer(first, 10);
  }
  Strip second;
  ASSERT_TRUE(second.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  second.EnableToolTips();
  MovePointer(second, 60);
  EXPECT_EQ(1, ToolCount(second));
  EXPECT_EQ(L"第二", TipText(second, 1));
}
