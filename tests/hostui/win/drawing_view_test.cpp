// The window of a drawing with several viewports: clicks, wheel, middle button, F7, the orbit.
#include "afxext.h"

#include "devhost/ui/view/drawing_view.h"
#include "tests/hostcore/host_fixture.h"

using namespace devhost;

namespace {

class ViewWindow : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
    Send(L"LINE 0,0 100,0 100,100 0,0 \x1b");
    m_parent = std::make_unique<CWnd>();
    m_parent->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr);
    view = std::make_unique<DrawingView>(*document);
    ASSERT_TRUE(view->CreateIn(m_parent.get()));
    ::MoveWindow(view->m_hWnd, 0, 0, 800, 600, FALSE);
  }
  void TearDown() override {
    m_parent->DestroyWindow();
    view.reset();
    m_parent.reset();
    HostTest::TearDown();
  }

  void Mouse(UINT message, int x, int y, WPARAM keys = 0) {
    ::SendMessageW(view->m_hWnd, message, keys, MAKELPARAM(x, y));
  }
  void Click(int x, int y) {
    Mouse(WM_LBUTTONDOWN, x, y, MK_LBUTTON);
    Mouse(WM_LBUTTONUP, x, y);
  }
  void Wheel(int x, int y, int delta) {
    POINT at = {x, y};
    ::ClientToScreen(view->m_hWnd, &at);
    Mouse(WM_MOUSEWHEEL, at.x, at.y, MAKEWPARAM(0, delta));
  }
  double ScaleOf(int viewport) { return document->viewports.ViewOf(viewport)->PixelsPerUnit(); }

  Document* document = nullptr;
  std::unique_ptr<DrawingView> view;

 private:
  std::unique_ptr<CWnd> m_parent;
};

}  // namespace

TEST_F(ViewWindow, AClickInAnotherViewportOnlyMakesItCurrent) {
  Send(L"-VPORTS 2 V\n");
  const POINT onLine = document->viewports.ViewOf(3)->ToPixel({50, 0, 0});
  ASSERT_EQ(document->viewports.At(onLine), 3);
  Click(onLine.x, onLine.y);
  EXPECT_EQ(Var(L"CVPORT"), L"3");
  EXPECT_TRUE(document->pickFirst.empty());
  Click(onLine.x, onLine.y);
  EXPECT_EQ(document->pickFirst.size(), 1u);
}

TEST_F(ViewWindow, ACommandGetsNoPointFromAClickThatChangesTheViewport) {
  Send(L"-VPORTS 2 V\n");
  const POINT place = document->viewports.ViewOf(3)->ToPixel({50, 30, 0});
  Then([&] {
    Click(place.x, place.y);
    EXPECT_EQ(Var(L"CVPORT"), L"3");
  });
  Then([&] {
    EXPECT_TRUE(host.engine.WaitsForPoint());
    EXPECT_FALSE(host.engine.RubberBandStart());
    Click(place.x, place.y);
  });
  Then([&] {
    ASSERT_TRUE(host.engine.RubberBandStart());
    EXPECT_NEAR(host.engine.RubberBandStart()->x, 50, 1 / ScaleOf(3));
    EXPECT_NEAR(host.engine.RubberBandStart()->y, 30, 1 / ScaleOf(3));
    host.engine.PressEscape();
  });
  Send(L"LINE\n");
}

TEST_F(ViewWindow, TheWheelZoomsTheViewportUnderThePointerAlsoWithinACommand) {
  Send(L"-VPORTS 2 V\n");
  const double before = ScaleOf(2);
  Then([&] {
    const AcGePoint3d kept = document->viewports.ViewOf(3)->ToWorld({500, 200});
    Wheel(500, 200, 120);
    EXPECT_DOUBLE_EQ(ScaleOf(3), before * 1.25);
    EXPECT_EQ(ScaleOf(2), before);
    EXPECT_NEAR(document->viewports.ViewOf(3)->ToWorld({500, 200}).x, kept.x, 1e-9);
    EXPECT_EQ(Var(L"CVPORT"), L"2");
    EXPECT_TRUE(host.engine.WaitsForPoint());
    Wheel(100, 200, -120);
    EXPECT_DOUBLE_EQ(ScaleOf(2), before / 1.25);
    host.engine.PressEscape();
  });
  Send(L"LINE\n");
}

TEST_F(ViewWindow, TheMiddleButtonPansTheViewportInWhichItWentDown) {
  Send(L"-VPORTS 2 V\n");
  const AcGePoint3d left = document->viewports.ViewOf(2)->ToWorld({100, 100});
  const AcGePoint3d right = document->viewports.ViewOf(3)->ToWorld({500, 100});
  Then([&] {
    Mouse(WM_MBUTTONDOWN, 500, 100, MK_MBUTTON);
    Mouse(WM_MOUSEMOVE, 300, 150, MK_MBUTTON);  // across the border
    Mouse(WM_MBUTTONUP, 300, 150);
    EXPECT_NEAR(document->viewports.ViewOf(3)->ToWorld({300, 150}).x, right.x, 1e-9);
    EXPECT_NEAR(document->viewports.ViewOf(3)->ToWorld({300, 150}).y, right.y, 1e-9);
    EXPECT_EQ(document->viewports.ViewOf(2)->ToWorld({100, 100}).x, left.x);
    host.engine.PressEscape();
  });
  Send(L"CIRCLE\n");
}

TEST_F(ViewWindow, AnOpenBoxKeepsItsCornerInTheDrawingDuringAZoom) {
  Send(L"ZOOM E\n");
  const POINT corner = document->view.ToPixel({-2, -2, 0});
  Click(corner.x, corner.y);  // beside everything: a box begins
  Wheel(400, 300, -240);
  const POINT other = document->view.ToPixel({102, 102, 0});
  Click(other.x, other.y);
  EXPECT_EQ(document->pickFirst.size(), 3u);
}

TEST_F(ViewWindow, F7ThatIsSentTogglesTheGrid) {
  ui.printed.clear();
  ::SendMessageW(view->m_hWnd, WM_KEYDOWN, VK_F7, 0);
  EXPECT_EQ(Var(L"GRIDMODE"), L"1");
  EXPECT_EQ(ui.printed, L"<Grid on>");
  ui.printed.clear();
  ::SendMessageW(view->m_hWnd, WM_KEYDOWN, 0x76, 0);
  EXPECT_EQ(Var(L"GRIDMODE"), L"0");
  EXPECT_EQ(ui.printed, L"<Grid off>");
}

TEST_F(ViewWindow, ADragTurnsTheViewDuringTheOrbitOnly) {
  Mouse(WM_LBUTTONDOWN, 300, 300, MK_LBUTTON);
  Mouse(WM_MOUSEMOVE, 360, 240, MK_LBUTTON);
  Mouse(WM_LBUTTONUP, 360, 240);
  EXPECT_TRUE(document->view.IsPlan());
  host.engine.PressEscape();
  Then([&] {
    Mouse(WM_LBUTTONDOWN, 300, 300, MK_LBUTTON);
    Mouse(WM_MOUSEMOVE, 360, 240, MK_LBUTTON);
    Mouse(WM_LBUTTONUP, 360, 240);
    EXPECT_FALSE(document->view.IsPlan());
    const double up = document->view.Up().y;
    Mouse(WM_MOUSEMOVE, 300, 100);  // the button is up
    EXPECT_EQ(document->view.Up().y, up);
    EXPECT_EQ(Var(L"CMDNAMES"), L"3DORBIT");
    host.engine.EnterLine(L"");
  });
  Send(L"3DORBIT\n");
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
  Send(L"PLAN\n");
  EXPECT_TRUE(document->view.IsPlan());
}

TEST_F(ViewWindow, ANewSizeKeepsThePartsOfTheViewports) {
  Send(L"-VPORTS 2 V\n");
  ::MoveWindow(view->m_hWnd, 0, 0, 400, 300, FALSE);
  ASSERT_EQ(document->viewports.OnScreen().size(), 2u);
  EXPECT_EQ(document->viewports.OnScreen()[0].pixels.right, 200);
  EXPECT_EQ(document->viewports.OnScreen()[1].pixels.right, 400);
  EXPECT_EQ(document->viewports.OnScreen()[1].pixels.bottom, 300);
}

// Counts pixels of the picture in a column that differ from the view's background.
TEST_F(ViewWindow, BordersAndGridArePainted) {
  Send(L"ERASE ALL\n\n-VPORTS 2 V\n");
  auto paintedIn = [this](int x) {
    WindowDc screen(view->m_hWnd);
    const HDC memory = ::CreateCompatibleDC(screen);
    int count = 0;
    {
      Bitmap bitmap(::CreateCompatibleBitmap(screen, 800, 600));
      Selected selected(memory, bitmap.Get());
      RECT all = {0, 0, 800, 600};
      Brush ground(::CreateSolidBrush(RGB(1, 2, 3)));
      ::FillRect(memory, &all, ground.Get());
      view->Model().PaintScene(memory);
      for (int y = 0; y < 600; ++y) count += ::GetPixel(memory, x, y) != RGB(1, 2, 3);
    }
    ::DeleteDC(memory);
    return count;
  };
  EXPECT_EQ(paintedIn(397), 600);  // the current viewport has a border of three pixels
  EXPECT_EQ(paintedIn(400), 600);  // the other one of one pixel
  EXPECT_EQ(paintedIn(401), 2);
  EXPECT_EQ(paintedIn(396), 6);
  Send(L"SETVAR GRIDUNIT 20\n");
  ::SendMessageW(view->m_hWnd, WM_KEYDOWN, VK_F7, 0);
  const int column = document->view.ToPixel({20, 0, 0}).x;
  ASSERT_TRUE(column > 10 && column < 390);
  EXPECT_GT(paintedIn(column), 10);
}
