// Windows and their objects: creation and its failures, handle maps, subclassing, exceptions.
#include "test_app.h"

#include <stdexcept>

namespace {

class LifeWindow : public TestWindow {
 public:
  std::vector<std::string> diary;
  int createAnswer = 0;
  bool refuseCreate = false, refuseNcCreate = false;

  BOOL PreCreateWindow(CREATESTRUCT& cs) override {
    diary.push_back("PreCreateWindow");
    return !refuseCreate && CWnd::PreCreateWindow(cs);
  }
  void PreSubclassWindow() override {
    diary.push_back(m_hWnd ? "PreSubclassWindow" : "without handle");
  }
  void PostNcDestroy() override { diary.push_back(m_hWnd ? "with handle" : "PostNcDestroy"); }
  ~LifeWindow() override { DestroyWindow(); }

 protected:
  BOOL OnNcCreate(LPCREATESTRUCT) {
    diary.push_back("OnNcCreate");
    return !refuseNcCreate && Default();
  }
  int OnCreate(LPCREATESTRUCT lpcs) {
    diary.push_back("OnCreate");
    return CWnd::OnCreate(lpcs) == -1 ? -1 : createAnswer;
  }
  void OnDestroy() {
    diary.push_back("OnDestroy");
    CWnd::OnDestroy();
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(LifeWindow, CWnd)
ON_WM_NCCREATE()
ON_WM_CREATE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

using Diary = std::vector<std::string>;
}  // namespace

TEST(Window, IsAttachedToItsObjectFromTheFirstMessageToTheLast) {
  LifeWindow w;
  ASSERT_TRUE(w.Make());
  HWND handle = w.m_hWnd;
  EXPECT_EQ(&w, CWnd::FromHandle(handle));
  EXPECT_EQ(&w, CWnd::FromHandlePermanent(handle));
  EXPECT_EQ(1, ::SendMessage(handle, WM_QUERYAFXWNDPROC, 0, 0));
  EXPECT_TRUE(w.DestroyWindow());
  EXPECT_EQ(nullptr, w.m_hWnd);
  EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
  EXPECT_FALSE(::IsWindow(handle));
  EXPECT_EQ((Diary{"PreCreateWindow", "PreSubclassWindow", "OnNcCreate", "OnCreate", "OnDestroy",
                   "PostNcDestroy"}),
            w.diary);
}

TEST(Window, IsNotCreatedWhenPreCreateWindowRefuses) {
  LifeWindow w;
  w.refuseCreate = true;
  EXPECT_FALSE(w.Make());
  EXPECT_EQ(nullptr, w.m_hWnd);
  EXPECT_EQ((Diary{"PreCreateWindow", "PostNcDestroy"}), w.diary);
}

TEST(Window, IsDestroyedWhenOnCreateReturnsMinusOne) {
  LifeWindow w;
  w.createAnswer = -1;
  EXPECT_FALSE(w.Make());
  EXPECT_EQ(nullptr, w.m_hWnd);
  EXPECT_EQ("PostNcDestroy", w.diary.back());
  w.createAnswer = 0;
  EXPECT_TRUE(w.Make());  // the object can be used again
}

TEST(Window, IsDestroyedWhenNcCreateFails) {
  LifeWindow w;
  w.refuseNcCreate = true;
  EXPECT_FALSE(w.Make());
  EXPECT_EQ(nullptr, w.m_hWnd);
  EXPECT_EQ("PostNcDestroy", w.diary.back());
}

TEST(Window, OfAClassThatDoesNotExistReportsFailureAndLeavesNoHook) {
  LifeWindow w;
  EXPECT_FALSE(w.CreateEx(0, L"NoSuchClass", L"", WS_OVERLAPPED, 0, 0, 1, 1, nullptr, nullptr));
  EXPECT_EQ((Diary{"PreCreateWindow", "PostNcDestroy"}), w.diary);
  // A window created by others later must not be attached to the object that failed.
  HWND other = ::CreateWindowEx(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 1, 1, nullptr, nullptr,
                                nullptr, nullptr);
  EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(other));
  EXPECT_EQ(nullptr, w.m_hWnd);
  ::DestroyWindow(other);
}

TEST(Window, CreatesAChildInItsOwnOnCreate) {
  struct Parent : TestWindow {
    CWnd child;
    LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
      if (m == WM_CREATE) {
        EXPECT_TRUE(child.Create(nullptr, L"", WS_VISIBLE, CRect(1, 2, 30, 40), this, 310));
      }
      return CWnd::WindowProc(m, w, l);
    }
  } parent;
  ASSERT_TRUE(parent.Make());
  EXPECT_EQ(310, parent.child.GetDlgCtrlID());
  EXPECT_EQ(&parent.child, parent.GetDlgItem(310));
  EXPECT_EQ(&parent, parent.child.GetParent());
  EXPECT_TRUE(parent.child.GetStyle() & WS_CHILD);
  parent.DestroyWindow();
  EXPECT_EQ(nullptr, parent.child.m_hWnd);  // destroyed with its parent
}

TEST(Window, TheDestructorDestroysAnExistingWindow) {
  HWND handle;
  {
    TestWindow w;
    ASSERT_TRUE(w.Make());
    handle = w.m_hWnd;
  }
  EXPECT_FALSE(::IsWindow(handle));
}

TEST(Window, CanBeDestroyedThroughAnObjectThatDeletesItself) {
  struct SelfMade : TestWindow {
    explicit SelfMade(bool& gone) : m_gone(gone) {}
    ~SelfMade() override { m_gone = true; }
    void PostNcDestroy() override { delete this; }
    bool& m_gone;
  };
  bool gone = false;
  auto* w = new SelfMade(gone);
  ASSERT_TRUE(w->Make());
  EXPECT_TRUE(w->DestroyWindow());
  EXPECT_TRUE(gone);
}

TEST(Window, CreatedAndDestroyedAHundredTimesLeavesNothingInTheMap) {
  for (int i = 0; i < 100; ++i) {
    TestWindow w;
    ASSERT_TRUE(w.Make());
    HWND handle = w.m_hWnd;
    w.DestroyWindow();
    ASSERT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
  }
}

// ---- handle maps

TEST(HandleMap, ReturnsOneTemporaryObjectUntilIdleTimeAndKeepsTheWindow) {
  HWND foreign = ::CreateWindowEx(0, L"STATIC", L"abc", WS_OVERLAPPED, 0, 0, 9, 9, nullptr, nullptr,
                                  nullptr, nullptr);
  CWnd* first = CWnd::FromHandle(foreign);
  EXPECT_EQ(first, CWnd::FromHandle(foreign));
  EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(foreign));
  CString text;
  first->GetWindowText(text);
  EXPECT_STREQ(L"abc", text);
  App().OnIdle(1);
  EXPECT_TRUE(::IsWindow(foreign));
  ::DestroyWindow(foreign);
}

TEST(HandleMap, TemporaryObjectsAreKeptWhileTheMapsAreLocked) {
  HWND foreign = ::GetDesktopWindow();
  AfxLockTempMaps();
  CWnd* temporary = CWnd::FromHandle(foreign);
  App().OnIdle(1);
  EXPECT_EQ(temporary, CWnd::FromHandle(foreign));
  EXPECT_FALSE(AfxUnlockTempMaps());
}

TEST(HandleMap, ANullHandleHasNoObject) {
  EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
  EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
  EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST(HandleMap, AttachingTwiceFails) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  HWND handle = w.m_hWnd;
  EXPECT_FALSE(w.Attach(::GetDesktopWindow()));
  EXPECT_EQ(handle, w.m_hWnd);
}

// ---- subclassing

namespace {
class TextCounter : public CWnd {
 public:
  int asked = 0;
  LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
    asked += m == WM_GETTEXTLENGTH;
    return CWnd::WindowProc(m, w, l);
  }
};
}  // namespace

TEST(Subclass, GetsTheMessagesAndPassesThemToTheOldProcedure) {
  HWND edit = ::CreateWindowEx(0, L"EDIT", L"four", WS_OVERLAPPED, 0, 0, 50, 20, nullptr, nullptr,
                               nullptr, nullptr);
  auto before = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
  TextCounter counter;
  ASSERT_TRUE(counter.SubclassWindow(edit));
  EXPECT_EQ(4, ::SendMessage(edit, WM_GETTEXTLENGTH, 0, 0));
  EXPECT_EQ(1, counter.asked);
  EXPECT_EQ(edit, counter.UnsubclassWindow());
  EXPECT_EQ(before, ::GetWindowLongPtr(edit, GWLP_WNDPROC));
  EXPECT_EQ(4, ::SendMessage(edit, WM_GETTEXTLENGTH, 0, 0));
  EXPECT_EQ(1, counter.asked);
  ::DestroyWindow(edit);
}

TEST(Subclass, OfAWindowThatHasAnObjectFails) {
  TestWindow w;
  ASSERT_TRUE(w.Make());
  CWnd second;
  EXPECT_FALSE(second.SubclassWindow(w.m_hWnd));
  EXPECT_EQ(nullptr, second.m_hWnd);
  EXPECT_EQ(&w, CWnd::FromHandlePermanent(w.m_hWnd));
}

TEST(Subclass, EndsWithTheWindow) {
  HWND edit = ::CreateWindowEx(0, L"EDIT", L"", WS_OVERLAPPED, 0, 0, 50, 20, nullptr, nullptr,
                               nullptr, nullptr);
  CWnd wnd;
  ASSERT_TRUE(wnd.SubclassWindow(edit));
  ::DestroyWindow(edit);
  EXPECT_EQ(nullptr, wnd.m_hWnd);
}

// ---- exceptions

namespace {
class Thrower : public TestWindow {
 public:
  int kind = 0;
  int paints = 0;
  void Throw() {
    if (kind == 1) AfxThrowMemoryException();
    if (kind == 2) throw std::runtime_error("wrong");
    if (kind == 3) throw 5;
    if (kind == 4) AfxThrowUserException();
  }
  LRESULT OnAsk(WPARAM, LPARAM) {
    Throw();
    return 7;
  }
  void OnPaint() {
    ++paints;
    Throw();
    ValidateRect(nullptr);
  }
  int OnCreate(LPCREATESTRUCT) {
    if (kind == 9) AfxThrowMemoryException();
    return 0;
  }
  DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Thrower, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_MESSAGE(WM_USER + 1, OnAsk)
END_MESSAGE_MAP()
}  // namespace

TEST(Exceptions, OfAHandlerAreCaughtInTheWindowProcedure) {
  Thrower w;
  ASSERT_TRUE(w.Make());
  EXPECT_EQ(7, w.SendMessage(WM_USER + 1));
  for (int kind : {1, 4}) {
    w.kind = kind;
    EXPECT_EQ(0, w.SendMessage(WM_USER + 1)) << kind;
  }
  w.kind = 0;
  EXPECT_EQ(7, w.SendMessage(WM_USER + 1));  // the window still works
}

TEST(Exceptions, OtherThanTheLibrarysLeaveTheWindowProcedure) {
  Thrower w;
  ASSERT_TRUE(w.Make());
  w.kind = 2;
  EXPECT_THROW(AfxCallWndProc(&w, w.m_hWnd, WM_USER + 1, 0, 0), std::runtime_error);
  w.kind = 3;
  EXPECT_THROW(AfxCallWndProc(&w, w.m_hWnd, WM_USER + 1, 0, 0), int);
  w.kind = 0;
  EXPECT_EQ(7, w.SendMessage(WM_USER + 1));
}

TEST(Exceptions, OfAUserAreNotReportedAgain) {
  Thrower w;
  ASSERT_TRUE(w.Make());
  App().boxes.clear();
  w.kind = 4;
  w.SendMessage(WM_USER + 1);
  EXPECT_TRUE(App().boxes.empty());
}

TEST(Exceptions, DuringPaintingEndThePainting) {
  Thrower w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  PumpQueue();
  w.kind = 1;
  w.paints = 0;
  w.Invalidate();
  w.UpdateWindow();
  EXPECT_EQ(1, w.paints);
  EXPECT_FALSE(w.GetUpdateRect(nullptr));  // or WM_PAINT would be sent for ever
}

TEST(Exceptions, InOnCreateFailTheCreation) {
  Thrower w;
  w.kind = 9;
  EXPECT_FALSE(w.Make());
  EXPECT_EQ(nullptr, w.m_hWnd);
}
