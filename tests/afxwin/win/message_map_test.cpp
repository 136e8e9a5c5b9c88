// The message map: each handler gets the message's arguments in the published form, and entries of
// a derived class take precedence over its base's.
#include "test_app.h"

namespace {

class Recorder : public TestWindow {
 public:
  std::wstring last;
  bool wheelTaken = true;

  void Note(LPCTSTR format, auto... values) {
    CString text;
    text.Format(format, values...);
    last = text.GetString();
  }
  void OnSize(UINT type, int cx, int cy) { Note(L"size %u %d %d", type, cx, cy); }
  void OnMove(int x, int y) { Note(L"move %d %d", x, y); }
  void OnLButtonDown(UINT flags, CPoint p) { Note(L"down %u %d %d", flags, int(p.x), int(p.y)); }
  void OnMouseMove(UINT flags, CPoint p) { Note(L"mousemove %u %d %d", flags, int(p.x), int(p.y)); }
  BOOL OnMouseWheel(UINT flags, short delta, CPoint p) {
    Note(L"wheel %u %d %d %d", flags, int(delta), int(p.x), int(p.y));
    return wheelTaken;
  }
  void OnTimer(UINT_PTR id) { Note(L"timer %u", UINT(id)); }
  void OnVScroll(UINT code, UINT pos, CScrollBar* bar) {
    Note(L"vscroll %u %d %d", code, int(pos), bar == nullptr);
  }
  void OnHScroll(UINT code, UINT pos, CScrollBar* bar) {
    Note(L"hscroll %u %d %d", code, int(pos), bar ? bar->GetDlgCtrlID() : -1);
  }
  void OnKeyDown(UINT key, UINT repeat, UINT flags) { Note(L"key %u %u %u", key, repeat, flags); }
  void OnContextMenu(CWnd* wnd, CPoint p) {
    Note(L"context %d %d %d", wnd == this, int(p.x), int(p.y));
  }
  void OnCaptureChanged(CWnd* wnd) { Note(L"capture %d", wnd == this); }
  void OnKillFocus(CWnd* wnd) { Note(L"killfocus %d", wnd == this); }
  BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message) {
    Note(L"cursor %d %u %u", wnd == this, hit, message);
    return TRUE;
  }
  void OnMenuSelect(UINT id, UINT flags, HMENU menu) {
    Note(L"select %u %u %d", id, flags, menu == nullptr);
  }
  LRESULT OnMenuChar(UINT c, UINT flags, CMenu* menu) {
    Note(L"menuchar %u %u %d", c, flags, menu == nullptr);
    return MAKELRESULT(4, MNC_EXECUTE);
  }
  void OnExitMenuLoop(BOOL shortcut) { Note(L"exit %d", shortcut); }
  void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
    Note(L"popup %d %u %d", menu->GetMenuItemCount(), index, system);
  }
  void OnActivate(UINT state, CWnd*, BOOL minimized) { Note(L"activate %u %d", state, minimized); }
  void OnMDIActivate(BOOL on, CWnd* in, CWnd* out) {
    Note(L"mdi %d %d %d", on, in == this, out == nullptr);
  }
  void OnWindowPosChanged(WINDOWPOS* pos) { Note(L"pos %d %d", pos->cx, pos->cy); }
  LRESULT OnNcHitTest(CPoint p) {
    Note(L"hit %d %d", int(p.x), int(p.y));
    return HTCAPTION;
  }
  LRESULT OnOwn(WPARAM w, LPARAM l) { return LRESULT(w * 100 + l); }

  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Recorder, CWnd)
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_TIMER()
ON_WM_VSCROLL()
ON_WM_HSCROLL()
ON_WM_KEYDOWN()
ON_WM_CONTEXTMENU()
ON_WM_CAPTURECHANGED()
ON_WM_KILLFOCUS()
ON_WM_SETCURSOR()
ON_WM_MENUSELECT()
ON_WM_MENUCHAR()
ON_WM_EXITMENULOOP()
ON_WM_INITMENUPOPUP()
ON_WM_ACTIVATE()
ON_WM_MDIACTIVATE()
ON_WM_WINDOWPOSCHANGED()
ON_WM_NCHITTEST()
ON_MESSAGE(0x500, OnOwn)
END_MESSAGE_MAP()

struct Case {
  UINT message;
  WPARAM w;
  LPARAM l;
  const wchar_t* expected;
};

}  // namespace

TEST(MessageMap, UnpacksEachMessageForItsHandler) {
  Recorder w;
  ASSERT_TRUE(w.Make());
  auto self = reinterpret_cast<WPARAM>(w.m_hWnd);
  const Case cases[] = {
      {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 40000), L"size 2 300 40000"},
      {WM_MOVE, 0, MAKELPARAM(-3, 7), L"move -3 7"},
      {WM_LBUTTONDOWN, MK_SHIFT, MAKELPARAM(-10, 20), L"down 4 -10 20"},
      {WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(1, 2), L"mousemove 1 1 2"},
      {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), MAKELPARAM(-5, 6), L"wheel 8 -120 -5 6"},
      {WM_TIMER, 20, 0, L"timer 20"},
      {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 77), 0, L"vscroll 5 77 1"},
      {WM_KEYDOWN, VK_F4, MAKELPARAM(2, 0x3E), L"key 115 2 62"},
      {WM_CONTEXTMENU, self, MAKELPARAM(-1, -1), L"context 1 -1 -1"},
      {WM_CAPTURECHANGED, 0, LPARAM(self), L"capture 1"},
      {WM_KILLFOCUS, self, 0, L"killfocus 1"},
      {WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), L"cursor 1 1 512"},
      {WM_MENUSELECT, MAKEWPARAM(3001, MF_CHECKED), 0, L"select 3001 8 1"},
      {WM_MENUCHAR, MAKEWPARAM('w', MF_POPUP), 0, L"menuchar 119 16 1"},
      {WM_EXITMENULOOP, TRUE, 0, L"exit 1"},
      {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, L"activate 2 1"},
      {WM_MDIACTIVATE, 0, LPARAM(self), L"mdi 1 1 1"},
      {WM_NCHITTEST, 0, MAKELPARAM(-8, 9), L"hit -8 9"},
  };
  for (const Case& c : cases) {
    w.last.clear();
    w.SendMessage(c.message, c.w, c.l);
    EXPECT_EQ(c.expected, w.last) << "message " << c.message;
  }
}

TEST(MessageMap, ReturnsTheHandlersResult) {
  Recorder w;
  ASSERT_TRUE(w.Make());
  EXPECT_EQ(305, w.SendMessage(0x500, 3, 5));
  EXPECT_EQ(HTCAPTION, w.SendMessage(WM_NCHITTEST));
  EXPECT_EQ(MAKELRESULT(4, MNC_EXECUTE), w.SendMessage(WM_MENUCHAR, MAKEWPARAM('a', MF_POPUP)));
  EXPECT_EQ(0, w.SendMessage(WM_TIMER, 1));
}

TEST(MessageMap, ScrollHandlersGetTheControlThatSent) {
  Recorder w;
  ASSERT_TRUE(w.Make());
  CScrollBar bar;
  ASSERT_TRUE(bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 50, 10), &w, 100));
  w.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_PAGEDOWN, 0), reinterpret_cast<LPARAM>(bar.m_hWnd));
  EXPECT_EQ(L"hscroll 3 0 100", w.last);
}

TEST(MessageMap, PopupMenusArePassedAsObjects) {
  Recorder w;
  ASSERT_TRUE(w.Make());
  CMenu menu;
  ASSERT_TRUE(menu.CreatePopupMenu());
  menu.AppendMenu(MF_STRING, 1, L"a");
  menu.AppendMenu(MF_STRING, 2, L"b");
  w.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(3, FALSE));
  EXPECT_EQ(L"popup 2 3 0", w.last);
}

TEST(MessageMap, AWheelMessageThatIsNotHandledGoesToTheParent) {
  Recorder parent, child;
  ASSERT_TRUE(parent.Make());
  ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &parent, 1));
  child.wheelTaken = false;
  parent.last.clear();
  child.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  EXPECT_EQ(L"wheel 0 120 0 0", parent.last);
  child.wheelTaken = true;
  parent.last.clear();
  child.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  EXPECT_EQ(L"", parent.last);
}

TEST(MessageMap, DefaultHandlesTheCurrentMessageWithItsOwnParameters) {
  struct Upper : TestWindow {
    CString seen;
    LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
      if (m == WM_SETTEXT) {
        // A nested message must not replace the current one permanently.
        SendMessage(WM_NULL);
        return Default();
      }
      return CWnd::WindowProc(m, w, l);
    }
  } w;
  ASSERT_TRUE(w.Make());
  w.SetWindowText(L"墙体");
  CString text;
  w.GetWindowText(text);
  EXPECT_STREQ(L"墙体", text);
}

namespace {
class BaseRecorder : public TestWindow {
 public:
  std::string who;
  void OnTimer(UINT_PTR) { who += "base"; }
  void OnClose() { who += "close"; }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(BaseRecorder, CWnd)
ON_WM_TIMER()
ON_WM_CLOSE()
END_MESSAGE_MAP()
class DerivedRecorder : public BaseRecorder {
 public:
  void OnTimer(UINT_PTR id) {
    who += "derived ";
    BaseRecorder::OnTimer(id);
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DerivedRecorder, BaseRecorder)
ON_WM_TIMER()
END_MESSAGE_MAP()
}  // namespace

TEST(MessageMap, OfADerivedClassTakesPrecedenceOverItsBase) {
  DerivedRecorder w;
  ASSERT_TRUE(w.Make());
  w.SendMessage(WM_TIMER, 1);
  EXPECT_EQ("derived base", w.who);
  w.who.clear();
  w.SendMessage(WM_CLOSE);
  EXPECT_EQ("close", w.who);
}
