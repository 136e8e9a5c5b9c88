// Tiled viewports: tiling, the current one, the command -VPORTS, CVPORT, the published records; the
// direction of view; grid dots.
#include <algorithm>
#include <memory>
#include <numbers>

#include "axlock.h"
#include "devhost/core/view/grid.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

bool Same(const RECT& r, LONG left, LONG top, LONG right, LONG bottom) {
  return r.left == left && r.top == top && r.right == right && r.bottom == bottom;
}

class Viewports : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing().viewports.Resize(800, 600);
  }
  Document& Drawing() { return *host.documents.Current(); }
  ViewportSet& Set() { return Drawing().viewports; }
  RECT PixelsOf(int number) {
    for (const ViewportOnScreen& viewport : Set().OnScreen())
      if (viewport.number == number) return viewport.pixels;
    return {};
  }
};

}  // namespace

TEST_F(Viewports, ANewDrawingHasOneWithNumberTwo) {
  ASSERT_EQ(Set().OnScreen().size(), 1u);
  EXPECT_EQ(Var(L"CVPORT"), L"2");
  EXPECT_EQ(Set().At({0, 0}), 2);
  EXPECT_EQ(Set().At({799, 599}), 2);
  EXPECT_EQ(Set().At({800, 10}), 0);
  EXPECT_EQ(Set().At({10, -1}), 0);
}

TEST_F(Viewports, TwoVerticalHalvesShareTheWindowWithoutAGap) {
  Set().Resize(801, 600);
  Send(L"-VPORTS 2 V ");
  ASSERT_EQ(Set().OnScreen().size(), 2u);
  EXPECT_EQ(PixelsOf(2).right, PixelsOf(3).left);
  EXPECT_EQ(PixelsOf(3).right, 801);
  EXPECT_EQ(Set().At({PixelsOf(3).left - 1, 5}), 2);
  EXPECT_EQ(Set().At({PixelsOf(3).left, 5}), 3);
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Viewports, TheDefaultsAreThreeWithTheLargeOneAtTheRight) {
  Send(L"-VPORTS\n\n\n");
  EXPECT_TRUE(Same(PixelsOf(2), 400, 0, 800, 600));
  EXPECT_TRUE(Same(PixelsOf(3), 0, 0, 400, 300));
  EXPECT_TRUE(Same(PixelsOf(4), 0, 300, 400, 600));
}

TEST_F(Viewports, ACurrentOneIsDividedAgainAndNumbersAreFree) {
  Send(L"-VPORTS 2 H\n");
  EXPECT_TRUE(Same(PixelsOf(2), 0, 0, 800, 300));  // above
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::Ok);
  Send(L"-VPORTS 4\n");
  ASSERT_EQ(Set().OnScreen().size(), 5u);
  EXPECT_TRUE(Same(PixelsOf(3), 0, 300, 400, 450));
  EXPECT_TRUE(Same(PixelsOf(6), 400, 450, 800, 600));
  Send(L"-VPORTS SI\n");
  ASSERT_EQ(Set().OnScreen().size(), 1u);
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Viewports, CancelledOptionsChangeNothing) {
  Send(L"-VPORTS 2 \x1b");
  Send(L"-VPORTS \x1b");
  EXPECT_EQ(Set().OnScreen().size(), 1u);
}

TEST_F(Viewports, MoreThanTheMostAreRefused) {
  for (int i = 0; i < 21; ++i) ASSERT_TRUE(Set().Split(Tiling::Four));  // 64
  EXPECT_EQ(Set().OnScreen().size(), kMostTiles);
  Send(L"-VPORTS 2 H\n");
  EXPECT_EQ(Set().OnScreen().size(), kMostTiles);
  EXPECT_NE(ui.printed.find(L"上限"), std::wstring::npos);
}

TEST_F(Viewports, EachKeepsItsOwnView) {
  Send(L"-VPORTS 2 V\n");
  const double scale = Drawing().view.PixelsPerUnit();
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::Ok);
  EXPECT_EQ(Drawing().view.PixelsPerUnit(), scale);  // a new one begins with the divided one's
  Send(L"ZOOM 4X\n");
  EXPECT_DOUBLE_EQ(Drawing().view.PixelsPerUnit(), 4 * scale);
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"2"), VarResult::Ok);
  EXPECT_EQ(Drawing().view.PixelsPerUnit(), scale);
  EXPECT_DOUBLE_EQ(Set().ViewOf(3)->PixelsPerUnit(), 4 * scale);
  EXPECT_EQ(Set().ViewOf(4), nullptr);
}

TEST_F(Viewports, ZoomTakesAWindowByItsCornersOrByItsKeyword) {
  for (const wchar_t* typed : {L"ZOOM 100,200 900,600\n", L"ZOOM W 900,600 100,200\n"}) {
    Send(L"ZOOM 7X\n");
    Send(typed);
    const ViewTransform& view = Drawing().view;
    EXPECT_DOUBLE_EQ(view.Center().x, 500) << typed;
    EXPECT_DOUBLE_EQ(view.Center().y, 400) << typed;
    EXPECT_DOUBLE_EQ(view.PixelsPerUnit(), std::min(view.Width() / 800.0, view.Height() / 400.0))
        << typed;
  }
}

TEST_F(Viewports, ZoomRefusesWhatIsNoPointNoKeywordAndNoFactor) {
  for (const wchar_t* typed : {L"ZOOM -2\n", L"ZOOM 0\n", L"ZOOM 2Y\n"}) {
    const double scale = Drawing().view.PixelsPerUnit();
    ui.printed.clear();
    Send(typed);
    EXPECT_EQ(Drawing().view.PixelsPerUnit(), scale) << typed;
    EXPECT_NE(ui.printed.find(L"需要点或选项关键字。"), std::wstring::npos) << typed;
  }
}

TEST_F(Viewports, PixelsAreThoseOfTheWindow) {
  Send(L"-VPORTS 2 V\n");
  for (const int number : {2, 3}) {
    ViewTransform& view = *Set().ViewOf(number);
    const POINT pixel = {PixelsOf(number).left + 30, 77};
    const POINT back = view.ToPixel(view.ToWorld(pixel));
    EXPECT_EQ(back.x, pixel.x);
    EXPECT_EQ(back.y, pixel.y);
    const AcGePoint3d kept = view.ToWorld(pixel);
    view.ZoomAt(pixel, 1.6);
    EXPECT_NEAR(view.ToWorld(pixel).x, kept.x, 1e-9);
    EXPECT_NEAR(view.ToWorld(pixel).y, kept.y, 1e-9);
  }
}

TEST_F(Viewports, CvportAcceptsTheNumbersOnTheScreenOnly) {
  EXPECT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::OutOfRange);
  EXPECT_EQ(host.variables.Set(L"CVPORT", L"1"), VarResult::OutOfRange);
  Send(L"-VPORTS 2 V\n");
  EXPECT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::Ok);
  EXPECT_EQ(Set().CurrentNumber(), 3);
  EXPECT_EQ(Var(L"CVPORT"), L"3");
}

TEST_F(Viewports, ASheetFillsTheWindowAndTheTilesComeBack) {
  Send(L"-VPORTS 2 V\n");
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::Ok);
  Send(L"ZOOM 4X\n");
  const double scale = Drawing().view.PixelsPerUnit();
  Drawing().pickFirst.clear();
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"0"), VarResult::Ok);
  EXPECT_EQ(Var(L"CVPORT"), L"1");
  ASSERT_EQ(Set().OnScreen().size(), 1u);
  EXPECT_EQ(Set().At({5, 5}), 1);  // the sheet is beside all its viewports
  EXPECT_EQ(Set().ViewOf(3), nullptr);
  EXPECT_EQ(Drawing().view.Width(), 800);
  Drawing().view.ZoomAt({5, 5}, 7);
  Send(L"-VPORTS 2 V\n");
  EXPECT_NE(ui.printed.find(L"模型"), std::wstring::npos);
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"1"), VarResult::Ok);
  EXPECT_EQ(Var(L"CVPORT"), L"3");
  EXPECT_EQ(Set().OnScreen().size(), 2u);
  EXPECT_DOUBLE_EQ(Drawing().view.PixelsPerUnit(), scale);
}

TEST_F(Viewports, RecordsDescribeTheScreenWithTheCurrentOneFirst) {
  Send(L"-VPORTS 2 V\n");
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"3"), VarResult::Ok);
  EXPECT_EQ(acedVports2VportTableRecords(), Acad::eLockViolation);
  const AcAxDocLock lock;
  ASSERT_EQ(acedVports2VportTableRecords(), Acad::eOk);
  AcDbViewportTable* table = nullptr;
  ASSERT_EQ(Drawing().database()->getSymbolTable(table, AcDb::kForRead), Acad::eOk);
  AcDbViewportTableIterator* all = nullptr;
  ASSERT_EQ(table->newIterator(all), Acad::eOk);
  table->close();
  const std::unique_ptr<AcDbViewportTableIterator> iterator(all);
  std::vector<int> numbers;
  for (; !iterator->done(); iterator->step()) {
    AcDbViewportTableRecord* record = nullptr;
    ASSERT_EQ(iterator->getRecord(record, AcDb::kForRead), Acad::eOk);
    EXPECT_STREQ(record->getName(), L"*Active");
    numbers.push_back(record->number());
    EXPECT_EQ(record->lowerLeftCorner().x, record->number() == 3 ? 0.5 : 0);
    EXPECT_EQ(record->upperRightCorner().x, record->number() == 3 ? 1 : 0.5);
    EXPECT_EQ(record->upperRightCorner().y, 1);
    record->close();
  }
  EXPECT_EQ(numbers, (std::vector<int>{3, 2}));
}

namespace {

// Moves the border between the viewports 2 and 3 of the records; returns the result of the update.
Acad::ErrorStatus MoveBorder(AcDbDatabase& database, double leftEnd, double rightBegin) {
  const AcAxDocLock lock;
  acedVports2VportTableRecords();
  AcDbViewportTable* table = nullptr;
  AcDbViewportTableIterator* all = nullptr;
  if (database.getViewportTable(table, AcDb::kForRead) != Acad::eOk) return Acad::eInvalidInput;
  table->newIterator(all);
  table->close();
  const std::unique_ptr<AcDbViewportTableIterator> iterator(all);
  for (; !iterator->done(); iterator->step()) {
    AcDbViewportTableRecord* record = nullptr;
    if (iterator->getRecord(record, AcDb::kForWrite) != Acad::eOk) continue;
    if (record->number() == 2) record->setUpperRightCorner({leftEnd, 1});
    if (record->number() == 3) record->setLowerLeftCorner({rightBegin, 0});
    record->close();
  }
  return acedVportTableRecords2Vports();
}

}  // namespace

TEST_F(Viewports, ChangedRecordsMoveABorder) {
  Send(L"-VPORTS 2 V\n");
  const double scale = Drawing().view.PixelsPerUnit();
  EXPECT_EQ(MoveBorder(*Drawing().database(), 0.25, 0.25), Acad::eOk);
  EXPECT_TRUE(Same(PixelsOf(2), 0, 0, 200, 600));
  EXPECT_TRUE(Same(PixelsOf(3), 200, 0, 800, 600));
  EXPECT_EQ(Drawing().view.Width(), 200);
  EXPECT_EQ(Drawing().view.PixelsPerUnit(), scale);
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Viewports, RecordsThatDoNotFillTheWindowAreRefused) {
  Send(L"-VPORTS 2 V\n");
  EXPECT_EQ(MoveBorder(*Drawing().database(), 0.6, 0.5), Acad::eInvalidInput);  // overlap
  EXPECT_EQ(MoveBorder(*Drawing().database(), 0.4, 0.5), Acad::eInvalidInput);  // gap
  EXPECT_EQ(MoveBorder(*Drawing().database(), 0, 0), Acad::eInvalidInput);      // empty
  EXPECT_EQ(MoveBorder(*Drawing().database(), 1.5, 1.5), Acad::eInvalidInput);  // outside
  EXPECT_TRUE(Same(PixelsOf(2), 0, 0, 400, 600));
}

namespace {

Acad::ErrorStatus WriteRecords() {
  const AcAxDocLock lock;
  return acedVports2VportTableRecords();
}

}  // namespace

TEST_F(Viewports, RecordsAreUsedAgain) {
  Send(L"-VPORTS 4\n");
  ASSERT_EQ(WriteRecords(), Acad::eOk);
  const int objects = Drawing().database()->approxNumObjects();
  Send(L"-VPORTS SI\n");
  ASSERT_EQ(WriteRecords(), Acad::eOk);
  AcDbViewportTable* table = nullptr;
  ASSERT_EQ(Drawing().database()->getViewportTable(table, AcDb::kForRead), Acad::eOk);
  AcDbObjectId id;
  EXPECT_EQ(table->getAt(L"*ACTIVE", id), Acad::eOk);
  table->close();
  Send(L"-VPORTS 4\n");
  ASSERT_EQ(WriteRecords(), Acad::eOk);
  EXPECT_EQ(Drawing().database()->approxNumObjects(), objects);
}

TEST_F(Viewports, WithoutADrawingThereAreNoRecords) {
  host.documents.Close(&Drawing());
  EXPECT_EQ(acedVports2VportTableRecords(), Acad::eNoDocument);
  EXPECT_EQ(acedVportTableRecords2Vports(), Acad::eNoDocument);
}

TEST_F(Viewports, UndoOfAVariableThatNamesAGoneViewportKeepsTheCurrentOne) {
  Send(L"-VPORTS 2 V\nSETVAR CVPORT 3\nSETVAR CVPORT 2\n");
  Set().MakeCurrent(2);
  Set().MakeSingle();
  Send(L"U\n");  // back to 3, which is gone
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Viewports, OrbitStaysActiveUntilEnterAndTurnsTheView) {
  Then([&] {
    EXPECT_EQ(Var(L"CMDNAMES"), L"3DORBIT");
    EXPECT_EQ(host.engine.Request(), InputRequest::View);
    host.engine.EnterLine(L"text");  // is ignored
  });
  Then([&] {
    EXPECT_EQ(Var(L"CMDNAMES"), L"3DORBIT");
    host.engine.EnterLine(L"");
  });
  Send(L"3DORBIT\n");
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
  Then([&] { host.engine.PressEscape(); });
  Send(L"3DORBIT\n");
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
}

TEST_F(Viewports, AnOrbitInsideACommandIsTransparent) {
  Then([&] {
    EXPECT_EQ(Var(L"CMDNAMES"), L"LINE'3DORBIT");
    host.engine.EnterLine(L"");
  });
  Then([&] {
    EXPECT_EQ(Var(L"CMDNAMES"), L"LINE");
    host.engine.PressEscape();
  });
  Send(L"LINE\n'3DORBIT\n");
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
}

TEST(ViewDirection, ATurnedViewKeepsTheMiddleAndConvertsBothWays) {
  ViewTransform view;
  view.Place({100, 50, 500, 350});
  const AcGePoint3d middle = view.ToWorld(view.Middle());
  view.OrbitBy(60, -80);
  EXPECT_FALSE(view.IsPlan());
  EXPECT_NEAR(view.ToWorld(view.Middle()).x, middle.x, 1e-9);
  EXPECT_NEAR(view.ToWorld(view.Middle()).y, middle.y, 1e-9);
  const AcGePoint3d world = view.ToWorld({130, 80});
  EXPECT_EQ(world.z, 0);
  EXPECT_EQ(view.ToPixel(world).x, 130);
  EXPECT_EQ(view.ToPixel(world).y, 80);
  // A point above the plane is seen higher on the screen.
  EXPECT_LT(view.ToPixel({world.x, world.y, 50}).y, 80);
  view.ZoomAt({130, 80}, 2);
  EXPECT_NEAR(view.ToWorld({130, 80}).x, world.x, 1e-9);
  view.LookDown();
  EXPECT_TRUE(view.IsPlan());
  EXPECT_EQ(view.ToPixel({world.x, world.y, 50}).y, view.ToPixel(world).y);
}

TEST(ViewDirection, IsNeverFromTheSideOrFromBelow) {
  ViewTransform view;
  view.OrbitBy(0, -100000);
  EXPECT_GT(view.Up().y, 0.1);
  EXPECT_TRUE(std::isfinite(view.ToWorld({0, 0}).y));
  view.OrbitBy(0, 100000);
  EXPECT_NEAR(view.Up().y, 1, 1e-12);
}

TEST(ViewDirection, AllPointsOfAZoomedBoxAreSeen) {
  ViewTransform view;
  view.Resize(400, 300);
  view.OrbitBy(90, -60);
  AcDbExtents box;
  box.addPoint({-10, 0, 0});
  box.addPoint({90, 40, 30});
  view.ZoomTo(box);
  for (const AcGePoint3d corner : {AcGePoint3d(-10, 0, 0), AcGePoint3d(90, 40, 30),
                                   AcGePoint3d(-10, 40, 30), AcGePoint3d(90, 0, 0)}) {
    const POINT p = view.ToPixel(corner);
    EXPECT_TRUE(p.x >= 0 && p.x < 400 && p.y >= 0 && p.y < 300);
  }
}

TEST(Grid, DotsAreAtTheCrossingsInsideTheViewport) {
  ViewTransform view;
  view.Place({50, 20, 250, 120});
  AcDbExtents box;
  box.addPoint({0, 0, 0});
  box.addPoint({95, 47.5, 0});  // two pixels a unit
  view.ZoomTo(box);
  ASSERT_DOUBLE_EQ(view.PixelsPerUnit(), 2);
  const std::vector<POINT> dots = GridDots(view, UserSystem(), 10, 20);
  EXPECT_EQ(dots.size(), 10u * 3u);
  for (const POINT& dot : dots) {
    EXPECT_TRUE(dot.x >= 50 && dot.x < 250 && dot.y >= 20 && dot.y < 120);
    const AcGePoint3d at = view.ToWorld(dot);
    EXPECT_NEAR(std::remainder(at.x, 10), 0, 0.5);
    EXPECT_NEAR(std::remainder(at.y, 20), 0, 0.5);
  }
}

TEST(Grid, FollowsTheUsersAxes) {
  ViewTransform view;
  const UserSystem system =
      RotatedAboutZ({{3, 4, 0}, AcGeVector3d::kXAxis, AcGeVector3d::kYAxis}, std::numbers::pi / 6);
  const std::vector<POINT> dots = GridDots(view, system, 50, 50);
  ASSERT_FALSE(dots.empty());
  for (const POINT& dot : dots) {
    const AcGePoint3d at = system.ToUser(view.ToWorld(dot));
    EXPECT_NEAR(std::remainder(at.x, 50), 0, 1);
    EXPECT_NEAR(std::remainder(at.y, 50), 0, 1);
  }
}

TEST(Grid, IsNotShownWhenTooDenseOrWithoutSteps) {
  ViewTransform view;
  const double limit = kDensestGrid / view.PixelsPerUnit();
  EXPECT_FALSE(GridDots(view, UserSystem(), limit * 1.01, limit * 1.01).empty());
  EXPECT_TRUE(GridDots(view, UserSystem(), limit * 0.99, 100).empty());
  EXPECT_TRUE(GridDots(view, UserSystem(), 100, limit * 0.99).empty());
  EXPECT_TRUE(GridDots(view, UserSystem(), 0, 10).empty());
  EXPECT_TRUE(GridDots(view, UserSystem(), -10, 10).empty());
}

TEST_F(Viewports, GridunitIsOneNumberOrTwo) {
  EXPECT_EQ(Var(L"GRIDUNIT"), L"10,10,0");
  EXPECT_EQ(host.variables.Set(L"GRIDUNIT", L"5"), VarResult::Ok);
  EXPECT_EQ(Var(L"GRIDUNIT"), L"5,5,0");
  EXPECT_EQ(host.variables.Set(L"GRIDUNIT", L"5,7.5"), VarResult::Ok);
  EXPECT_EQ(Var(L"GRIDUNIT"), L"5,7.5,0");
  for (const wchar_t* wrong : {L"", L"0", L"-1,2", L"1,", L"1,x", L"1,2,3,4", L"nan", L"1;2"})
    EXPECT_EQ(host.variables.Set(L"GRIDUNIT", wrong), VarResult::OutOfRange) << wrong;
  resbuf point{};
  point.restype = RTPOINT;
  point.resval.rpoint[0] = 3;
  point.resval.rpoint[1] = 4;
  EXPECT_EQ(acedSetVar(L"GRIDUNIT", &point), RTNORM);
  EXPECT_EQ(Var(L"GRIDUNIT"), L"3,4,0");
  EXPECT_EQ(acedSetVar(L"GRIDMODE", &point), RTERROR);
  point.restype = RTSHORT;
  EXPECT_EQ(acedSetVar(L"GRIDUNIT", &point), RTERROR);
}
