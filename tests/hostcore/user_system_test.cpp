// User coordinate systems: the command UCS, the conversions, input, selection and drawing in them,
// saving and undo.
#include <cmath>
#include <numbers>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/user_points.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class UserSystems : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing().view.Resize(800, 600);
  }
  AcDbDatabase& Database() { return *host.documents.Current()->database(); }
  // Origin 100,50; x points to world y, y to world -x.
  void TurnAndMove() { Send(L"UCS O 100,50\nUCS Z 90\n"); }
};

void ExpectPoint(const ads_point p, double x, double y, double z = 0) {
  EXPECT_NEAR(p[0], x, 1e-9);
  EXPECT_NEAR(p[1], y, 1e-9);
  EXPECT_NEAR(p[2], z, 1e-9);
}

void ExpectVector(const AcGeVector3d& v, double x, double y, double z = 0) {
  const ads_point p = {v.x, v.y, v.z};
  ExpectPoint(p, x, y, z);
}

int Trans(const ads_point p, int from, int to, int vector, ads_point result) {
  resbuf a{}, b{};
  a.restype = b.restype = RTSHORT;
  a.resval.rint = static_cast<short>(from);
  b.resval.rint = static_cast<short>(to);
  return acedTrans(p, &a, &b, vector, result);
}

// What the command PROBE got.
struct {
  ads_point point{}, corner{};
  ads_real distance = 0, angle = 0;
  int status = 0;
} g_probe;

void Probe() {
  const ads_point base = {1, 1, 0};
  g_probe.status = acedGetPoint(nullptr, L"p", g_probe.point);
  acedGetCorner(base, L"c", g_probe.corner);
  acedGetDist(base, L"d", &g_probe.distance);
  acedGetAngle(base, L"a", &g_probe.angle);
}

}  // namespace

TEST_F(UserSystems, ANewDrawingHasThatOfTheWorld) {
  EXPECT_EQ(Var(L"UCSORG"), L"0,0,0");
  EXPECT_EQ(Var(L"UCSXDIR"), L"1,0,0");
  EXPECT_EQ(Var(L"UCSYDIR"), L"0,1,0");
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
  EXPECT_EQ(host.variables.Set(L"UCSORG", L"1,1,0"), VarResult::ReadOnly);
}

TEST_F(UserSystems, OriginAndRotationAddUp) {
  TurnAndMove();
  EXPECT_EQ(Var(L"UCSORG"), L"100,50,0");
  EXPECT_EQ(Var(L"WORLDUCS"), L"0");
  ExpectVector(Database().ucsxdir(), 0, 1);
  ExpectVector(Database().ucsydir(), -1, 0);
  Send(L"UCS 10,0\n");  // in the user's system
  EXPECT_EQ(Var(L"UCSORG"), L"100,60,0");
  Send(L"UCS Z\n\n");  // 90 degrees
  ExpectVector(Database().ucsxdir(), -1, 0);
  Send(L"UCS\n\n");  // the world's
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
}

TEST_F(UserSystems, ThreePointsGivePerpendicularAxes) {
  Send(L"UCS 3 10,20 13,24 10,30\n");
  ExpectVector(Database().ucsxdir(), 0.6, 0.8);
  ExpectVector(Database().ucsydir(), -0.8, 0.6);
  Send(L"UCS 3\n\n\n\n");  // the defaults change nothing
  ExpectVector(Database().ucsxdir(), 0.6, 0.8);
  EXPECT_EQ(Var(L"UCSORG"), L"10,20,0");
  Send(L"UCS W\nUCS 3 0,0,0 0,0,5 1,0,5\n");  // x upwards
  ExpectVector(Database().ucsxdir(), 0, 0, 1);
  ExpectVector(Database().ucsydir(), 1, 0, 0);
}

TEST_F(UserSystems, PointsOnOneLineAndCancelsChangeNothing) {
  TurnAndMove();
  Send(L"UCS 3 0,0 1,1 2,2\n");
  EXPECT_NE(ui.printed.find(L"三点共线"), std::wstring::npos);
  Send(L"UCS 3 5,5 5,5 6,6\n");
  Send(L"UCS 3 5,5 \x1b");
  Send(L"UCS Z \x1b");
  Send(L"UCS O \x1b");
  Send(L"UCS \x1b");
  EXPECT_EQ(Var(L"UCSORG"), L"100,50,0");
  ExpectVector(Database().ucsxdir(), 0, 1);
}

TEST_F(UserSystems, UndoBringsTheOldOneBack) {
  Send(L"UCS O 100,50\n");
  Send(L"UCS Z 90\n");
  Send(L"U\n");
  ExpectVector(Database().ucsxdir(), 1, 0);
  EXPECT_EQ(Var(L"UCSORG"), L"100,50,0");
  Send(L"U\n");
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
}

TEST_F(UserSystems, TransConvertsPointsAndVectors) {
  TurnAndMove();
  const ads_point world = {103, 54, 2};
  ads_point p{};
  ASSERT_EQ(Trans(world, 0, 1, 0, p), RTNORM);
  ExpectPoint(p, 4, -3, 2);
  ASSERT_EQ(Trans(p, 1, 0, 0, p), RTNORM);  // in place
  ExpectPoint(p, 103, 54, 2);
  ASSERT_EQ(Trans(world, 0, 1, 1, p), RTNORM);
  ExpectPoint(p, 54, -103, 2);
  ASSERT_EQ(Trans(world, 0, 2, 0, p), RTNORM);  // the plan view has the world's axes
  ExpectPoint(p, 103, 54, 2);
}

TEST_F(UserSystems, TransToTheDisplayFollowsTheDirectionOfView) {
  host.documents.Current()->view.OrbitBy(40, -60);
  const ads_point world = {3, 4, 5};
  ads_point shown{}, back{};
  ASSERT_EQ(Trans(world, 0, 2, 0, shown), RTNORM);
  const ViewTransform& view = host.documents.Current()->view;
  const POINT a = view.ToPixel({0, 0, 0}), b = view.ToPixel({3, 4, 5});
  EXPECT_NEAR(b.x - a.x, shown[0] * view.PixelsPerUnit(), 1);
  EXPECT_NEAR(a.y - b.y, shown[1] * view.PixelsPerUnit(), 1);
  ASSERT_EQ(Trans(shown, 2, 0, 0, back), RTNORM);
  ExpectPoint(back, 3, 4, 5);
}

TEST_F(UserSystems, TransRefusesOtherCodes) {
  const ads_point p = {1, 2, 3};
  ads_point result = {7, 7, 7};
  resbuf code{};
  code.restype = RTSHORT;
  EXPECT_EQ(Trans(p, 0, 9, 0, result), RTERROR);
  EXPECT_EQ(acedTrans(p, nullptr, &code, 0, result), RTERROR);
  EXPECT_EQ(acedTrans(p, &code, nullptr, 0, result), RTERROR);
  EXPECT_EQ(acedTrans(nullptr, &code, &code, 0, result), RTERROR);
  EXPECT_EQ(acedTrans(p, &code, &code, 0, nullptr), RTERROR);
  code.restype = RTREAL;
  EXPECT_EQ(acedTrans(p, &code, &code, 0, result), RTERROR);
  ExpectPoint(result, 7, 7, 7);
}

TEST_F(UserSystems, InputGivesPointsOfTheUsersSystem) {
  TurnAndMove();
  host.commands.AddNative(L"PROBE", 0, Probe);
  g_probe = {};
  Then([&] { host.engine.EnterPoint({103, 54, 0}); });
  Then([&] {
    const auto base = host.engine.RubberBandStart();
    ASSERT_TRUE(base);
    EXPECT_NEAR(base->x, 99, 1e-9);  // 1,1 of the user
    EXPECT_NEAR(base->y, 51, 1e-9);
    host.engine.EnterLine(L"@2,0");
  });
  Then([&] { host.engine.EnterPoint({99, 54, 0}); });  // 3 from the base
  Then([&] { host.engine.EnterPoint({99, 54, 0}); });  // along the user's x
  Send(L"PROBE\n");
  EXPECT_EQ(g_probe.status, RTNORM);
  ExpectPoint(g_probe.point, 4, -3);
  ExpectPoint(g_probe.corner, 3, 1);
  EXPECT_NEAR(g_probe.distance, 3, 1e-9);
  EXPECT_NEAR(g_probe.angle, 0, 1e-9);
}

TEST_F(UserSystems, EntitiesAreDrawnAtTheUsersPoints) {
  TurnAndMove();
  Send(L"LINE 0,0 10,0 \x1b");
  ASSERT_EQ(Entities().size(), 1u);
  AcDbExtents box;
  ASSERT_EQ(Entities()[0]->getGeomExtents(box), Acad::eOk);
  EXPECT_NEAR(box.minPoint().x, 100, 1e-9);
  EXPECT_NEAR(box.maxPoint().x, 100, 1e-9);
  EXPECT_NEAR(box.minPoint().y, 50, 1e-9);
  EXPECT_NEAR(box.maxPoint().y, 60, 1e-9);
  Send(L"MOVE ALL\n\n0,0 5,0\n");  // 5 along world y
  ASSERT_EQ(Entities()[0]->getGeomExtents(box), Acad::eOk);
  EXPECT_NEAR(box.minPoint().y, 55, 1e-9);
  EXPECT_NEAR(box.minPoint().x, 100, 1e-9);
}

TEST_F(UserSystems, SelectionsTakePointsOfTheUsersSystem) {
  Send(L"LINE 100,50 100,60 \x1b");
  TurnAndMove();
  const ads_point on = {5, 0, 0}, off = {100, 55, 0}, a = {-1, -1, 0}, b = {11, 1, 0};
  ads_name set{};
  ASSERT_EQ(acedSSGet(nullptr, on, nullptr, nullptr, set), RTNORM);
  acedSSFree(set);
  EXPECT_EQ(acedSSGet(nullptr, off, nullptr, nullptr, set), RTERROR);
  for (const wchar_t* mode : {L"W", L"C"}) {
    ASSERT_EQ(acedSSGet(mode, a, b, nullptr, set), RTNORM) << mode;
    acedSSFree(set);
  }
}

TEST_F(UserSystems, EntselPicksAtAndGivesAPointOfTheUsersSystem) {
  Send(L"LINE 100,50 100,60 \x1b");
  TurnAndMove();
  static ads_name name;
  static ads_point at;
  static int status;
  status = 0;
  host.commands.AddNative(L"PROBE", 0, [] { status = acedEntSel(L"e", name, at); });
  Then([&] { host.engine.EnterPoint({100, 55, 0}); });
  Send(L"PROBE\n");
  ASSERT_EQ(status, RTNORM);
  ExpectPoint(at, 5, 0);
}

TEST_F(UserSystems, ModelAndSheetHaveTheirOwn) {
  TurnAndMove();
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"0"), VarResult::Ok);
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
  Send(L"UCS O 7,8\n");
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"1"), VarResult::Ok);
  EXPECT_EQ(Var(L"UCSORG"), L"100,50,0");
  Send(L"U\n");
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"0"), VarResult::Ok);
  EXPECT_EQ(Var(L"UCSORG"), L"0,0,0");  // undone there, not in the model
}

TEST_F(UserSystems, IsSavedWithTheDrawing) {
  Send(L"UCS 3 10,20 13,24 10,30\n");
  const std::string text = DrawingText(Database());
  EXPECT_NE(text.find("$UCSXDIR"), std::string::npos);
  EXPECT_NE(text.find("$PUCSORG"), std::string::npos);
  ASSERT_NE(host.documents.Open(MakeFile("saved.dxf", text)), nullptr);
  EXPECT_EQ(Var(L"UCSORG"), L"10,20,0");
  ExpectVector(Database().ucsxdir(), 0.6, 0.8);
  ExpectVector(Database().ucsydir(), -0.8, 0.6);
  // Once more, so that the values of the file are replaced.
  Send(L"UCS O 1,0\n");
  const std::string second = DrawingText(Database());
  ASSERT_NE(host.documents.Open(MakeFile("again.dxf", second)), nullptr);
  EXPECT_EQ(Var(L"UCSORG"), L"10.6,20.8,0");
  ExpectVector(Database().ucsxdir(), 0.6, 0.8);
}

TEST_F(UserSystems, ADrawingWithoutOneDoesNotGetIt) {
  EXPECT_EQ(DrawingText(Database()).find("UCS"), std::string::npos);
}

TEST_F(UserSystems, DamagedAxesInAFileAreThoseOfTheWorld) {
  auto file = [this](const char* x, const char* y) {
    static int number = 0;
    const std::string text =
        std::string("0\nSECTION\n2\nHEADER\n9\n$UCSORG\n10\n5\n20\n6\n30\n0\n") + "9\n$UCSXDIR\n" +
        x + "9\n$UCSYDIR\n" + y + "0\nENDSEC\n0\nEOF\n";
    return MakeFile("axes" + std::to_string(++number) + ".dxf", text);
  };
  ASSERT_NE(host.documents.Open(file("10\n0\n20\n0\n30\n0\n", "10\n0\n20\n1\n30\n0\n")), nullptr);
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
  ASSERT_NE(host.documents.Open(file("10\n1\n20\n1\n30\n0\n", "10\n2\n20\n2\n30\n0\n")), nullptr);
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
  ASSERT_NE(host.documents.Open(file("10\nnan\n20\n0\n30\n0\n", "10\n0\n20\n1\n30\n0\n")), nullptr);
  EXPECT_EQ(Var(L"WORLDUCS"), L"1");
  // Axes that are not perpendicular or not of length 1 are made so.
  ASSERT_NE(host.documents.Open(file("10\n3\n20\n0\n30\n0\n", "10\n5\n20\n2\n30\n0\n")), nullptr);
  EXPECT_EQ(Var(L"UCSORG"), L"5,6,0");
  ExpectVector(Database().ucsxdir(), 1, 0);
  ExpectVector(Database().ucsydir(), 0, 1);
}

TEST_F(UserSystems, ConversionsAreInverse) {
  UserSystem system;
  ASSERT_TRUE(SystemOfThreePoints({1, 2, 3}, {4, 0, 1}, {-2, 5, 9}, &system));
  EXPECT_NEAR(system.x.length(), 1, 1e-12);
  EXPECT_NEAR(system.y.length(), 1, 1e-12);
  EXPECT_NEAR(system.Z().length(), 1, 1e-12);
  const AcGePoint3d p = system.ToWorld(system.ToUser(AcGePoint3d(7, -8, 9)));
  EXPECT_NEAR(p.x, 7, 1e-12);
  EXPECT_NEAR(p.y, -8, 1e-12);
  EXPECT_NEAR(p.z, 9, 1e-12);
  AcGeVector3d v(0, 3, 4);
  EXPECT_EQ(&v.normalize(), &v);
  EXPECT_DOUBLE_EQ(v.y, 0.6);
  AcGeVector3d zero;
  EXPECT_EQ(zero.normalize().length(), 0);
}
