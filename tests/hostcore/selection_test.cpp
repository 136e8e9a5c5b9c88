// Wild cards, filters, selection sets and the pick-first set.
#include "devhost/core/selection/selection.h"

#include "devhost/core/selection/selection_filter.h"
#include "devhost/core/selection/wild_match.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"
#include "small_drawing.h"

using namespace devhost;

namespace {

struct WildCase {
  const wchar_t *text, *pattern;
  bool matches;
};

}  // namespace

TEST(WildCards, MatchAsDefinedByTheHost) {
  const WildCase cases[] = {
      {L"QVX_WALL", L"QVX_*", true},
      {L"qvx_wall", L"QVX_*", true},
      {L"LINE", L"QVX_*", false},
      {L"LINE", L"TEXT,LINE", true},
      {L"MTEXT", L"TEXT,LINE", false},
      {L"MTEXT", L"*TEXT", true},
      {L"A1", L"@#", true},
      {L"1A", L"@#", false},
      {L"A-1", L"@.#", true},
      {L"AB1", L"@.#", false},
      {L"WALL", L"~QVX_*", true},
      {L"QVX_WALL", L"~QVX_*", false},
      {L"B", L"[A-C]", true},
      {L"D", L"[A-C]", false},
      {L"D", L"[~A-C]", true},
      {L"A,B", L"A`,B", true},
      {L"A", L"A`,B", false},
      {L"", L"*", true},
      {L"", L"", true},
      {L"ab", L"a?b", false},
      {L"axb", L"a?b", true},
      {L"墙线", L"墙*", true},
      {L"aaaaaaaaab", L"*a*a*a*b", true},
      {L"x[", L"x[", true},
      {L"a`", L"a`", true},
      {L",", L"`,", true},
      {L"DOTE", L"[DW]*,~*", true},
      {L"B", L"[A,B]", true},
  };
  for (const WildCase& c : cases)
    EXPECT_EQ(WildMatch(c.text, c.pattern), c.matches)
        << Utf8(c.text) << " with " << Utf8(c.pattern);
}

TEST(WildCards, ManyStarsDoNotTakeExponentialTime) {
  std::wstring pattern;
  for (int i = 0; i < 200; ++i) pattern += L"*a";
  EXPECT_FALSE(WildMatch(std::wstring(5000, L'a') + L"b", pattern));
}

class Selection : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
    Send(L"LAYER 墙线\nLINE 0,0 10,0 \nLAYER 0\nCIRCLE 5,5 2 LINE 20,20 30,30 \n");
    ASSERT_EQ(Entities().size(), 3u);
  }
  // The number of entities that a filter finds in the drawing; -1 if the call fails.
  int Count(resbuf* filter, const wchar_t* mode = L"X") {
    ads_name set{};
    int length = -1;
    if (acedSSGet(mode, nullptr, nullptr, filter, set) == RTNORM) {
      acedSSLength(set, &length);
      acedSSFree(set);
    }
    if (filter) acutRelRb(filter);
    return length;
  }
};

TEST_F(Selection, FiltersByTypeAndLayer) {
  EXPECT_EQ(Count(nullptr), 3);
  EXPECT_EQ(Count(acutBuildList(0, L"LINE", 0)), 2);
  EXPECT_EQ(Count(acutBuildList(0, L"LINE", 8, L"墙*", 0)), 1);
  EXPECT_EQ(Count(acutBuildList(0, L"CIRCLE,ARC", 0)), 1);
  EXPECT_EQ(Count(acutBuildList(0, L"QVX_*", 0)), -1);
}

TEST_F(Selection, FiltersNestWithOperators) {
  EXPECT_EQ(Count(acutBuildList(-4, L"<OR", RTDXF0, L"CIRCLE", 8, L"墙线", -4, L"OR>", RTNONE)), 2);
  EXPECT_EQ(Count(acutBuildList(-4, L"<NOT", RTDXF0, L"CIRCLE", -4, L"NOT>", RTNONE)), 2);
  EXPECT_EQ(Count(acutBuildList(-4, L"<AND", RTDXF0, L"LINE", 8, L"0", -4, L"AND>", RTNONE)), 1);
}

TEST_F(Selection, UnclosedAndUnknownOperatorsAreHarmless) {
  EXPECT_EQ(Count(acutBuildList(-4, L"<OR", RTDXF0, L"CIRCLE", RTNONE)), 1);
  EXPECT_EQ(Count(acutBuildList(-4, L"<OR", RTNONE)), -1);
}

TEST_F(Selection, TheImpliedSetIsThePickFirstSet) {
  EXPECT_EQ(Count(nullptr, L"I"), -1);
  host.documents.Current()->pickFirst = {Entities()[1]->objectId(), Entities()[2]->objectId()};
  EXPECT_EQ(Count(nullptr, L"_I"), 2);
  EXPECT_EQ(Count(acutBuildList(0, L"LINE", 0), L"I"), 1);
  EXPECT_EQ(Count(nullptr, L"P"), 1);  // the result of the latest call
  EXPECT_EQ(Count(nullptr, L"Q?"), -1);
}

TEST_F(Selection, ThePickFirstSetIsReadAndWrittenThroughSets) {
  resbuf *grips = nullptr, *picked = nullptr;
  ads_name set{};
  ASSERT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, set), RTNORM);
  EXPECT_EQ(acedSSSetFirst(set, set), RTNORM);
  EXPECT_EQ(host.documents.Current()->pickFirst.size(), 3u);
  EXPECT_EQ(ui.log.back(), L"selection");
  ASSERT_EQ(acedSSGetFirst(&grips, &picked), RTNORM);
  EXPECT_EQ(picked->restype, RTPICKS);
  int length = 0;
  EXPECT_EQ(acedSSLength(picked->resval.rlname, &length), RTNORM);
  EXPECT_EQ(length, 3);
  for (resbuf* list : {grips, picked}) {
    acedSSFree(list->resval.rlname);
    acutRelRb(list);
  }
  acedSSFree(set);
  EXPECT_EQ(acedSSSetFirst(nullptr, nullptr), RTNORM);
  EXPECT_TRUE(host.documents.Current()->pickFirst.empty());
}

TEST_F(Selection, WithNothingSelectedBothListsAreNullAndTheCallSucceeds) {
  resbuf unused{};
  resbuf *grips = &unused, *picked = &unused;
  EXPECT_EQ(acedSSGetFirst(&grips, &picked), RTNORM);
  EXPECT_EQ(grips, nullptr);
  EXPECT_EQ(picked, nullptr);
  EXPECT_EQ(acedSSGetFirst(nullptr, nullptr), RTNORM);
}

TEST_F(Selection, APointPicksTheNearestObjectThatPassesTheFilter) {
  host.documents.Current()->view.ZoomTo([] {
    AcDbExtents extents;
    extents.addPoint({0, 0, 0});
    extents.addPoint({30, 30, 0});
    return extents;
  }());
  const double pixel = 1 / host.documents.Current()->view.PixelsPerUnit();
  const ads_point at = {5, 3 - pixel, 0};  // the circle is one pixel away, the line about 50
  const auto picked = [&](resbuf* filter) {
    ads_name set{}, name{};
    AcDbObjectId id;
    if (acedSSGet(nullptr, at, nullptr, filter, set) == RTNORM) {
      acedSSName(set, 0, name);
      acdbGetObjectId(id, name);
      acedSSFree(set);
    }
    if (filter) acutRelRb(filter);
    return id.object();
  };
  EXPECT_EQ(picked(nullptr), Entities()[1]);
  EXPECT_EQ(picked(acutBuildList(0, L"LINE", 0)), nullptr) << "too far away";
  Send(L"LINE 4,2.99 6,2.99 \n");
  AcDbEntity* line = Entities().back();
  EXPECT_EQ(picked(acutBuildList(0, L"LINE", 0)), line);
  EXPECT_EQ(picked(acutBuildList(0, L"CIRCLE", 0)), Entities()[1])
      << "the nearer line does not pass and is ignored";
}

TEST_F(Selection, AFenceSelectsWhatItsLinesTouch) {
  const auto count = [&](std::vector<AcGePoint3d> points, resbuf* filter) {
    resbuf* list = nullptr;
    for (auto p = points.rbegin(); p != points.rend(); ++p) {
      resbuf* node = acutNewRb(RT3DPOINT);
      node->resval.rpoint[0] = p->x;
      node->resval.rpoint[1] = p->y;
      node->resval.rpoint[2] = p->z;
      node->rbnext = list;
      list = node;
    }
    ads_name set{};
    int length = -1;
    if (acedSSGet(L"F", list, nullptr, filter, set) == RTNORM) {
      acedSSLength(set, &length);
      acedSSFree(set);
    }
    if (list) acutRelRb(list);
    if (filter) acutRelRb(filter);
    return length;
  };
  EXPECT_EQ(count({{5, 1e9, 0}, {5, -1e9, 0}}, nullptr), 2) << "the line and the circle";
  EXPECT_EQ(count({{5, 1e9, 0}, {5, -1e9, 0}}, acutBuildList(0, L"CIRCLE", 0)), 1);
  EXPECT_EQ(count({{5, 1e9, 0}, {5, -1e9, 0}}, acutBuildList(0, L"QVX_*", 0)), -1);
  EXPECT_EQ(count({{25, 1e9, 0}, {25, -1e9, 0}}, nullptr), 1) << "the line far away";
  EXPECT_EQ(count({{15, 1e9, 0}, {15, -1e9, 0}}, nullptr), -1);
  EXPECT_EQ(count({{15, -5, 0}, {15, 25, 0}, {25, 25, 0}}, nullptr), 1) << "its second piece";
  EXPECT_EQ(count({{5, 0, 77}, {5, 0, 77}}, nullptr), 1) << "heights do not count";
  EXPECT_EQ(count({{5, 0, 0}}, nullptr), -1) << "a fence has two points";
  EXPECT_EQ(count({}, nullptr), -1);
}

TEST_F(Selection, HitTestsLeaveThePreviousSetAlone) {
  host.documents.Current()->pickFirst = {Entities()[2]->objectId()};
  ASSERT_EQ(Count(nullptr, L"I"), 1);
  const ads_point at = {7, 5, 0};
  ads_name set{};
  ASSERT_EQ(acedSSGet(nullptr, at, nullptr, nullptr, set), RTNORM);
  acedSSFree(set);
  resbuf to{}, from{};
  from.rbnext = &to;
  from.restype = to.restype = RT3DPOINT;
  from.resval.rpoint[0] = to.resval.rpoint[0] = 5;
  from.resval.rpoint[1] = -1;
  to.resval.rpoint[1] = 9;
  ASSERT_EQ(acedSSGet(L"F", &from, nullptr, nullptr, set), RTNORM);
  acedSSFree(set);
  EXPECT_EQ(host.documents.Current()->previousSelection,
            (std::vector<AcDbObjectId>{Entities()[2]->objectId()}));
}

TEST_F(Selection, MembersAreAddedRemovedAndFound) {
  ads_name set{}, entity{}, other{};
  ASSERT_EQ(acdbGetAdsName(entity, Entities()[0]->objectId()), Acad::eOk);
  ASSERT_EQ(acdbGetAdsName(other, Entities()[1]->objectId()), Acad::eOk);
  ASSERT_EQ(acedSSAdd(entity, nullptr, set), RTNORM);
  EXPECT_EQ(acedSSAdd(other, set, set), RTNORM);
  EXPECT_EQ(acedSSAdd(other, set, set), RTNORM);
  int length = 0;
  acedSSLength(set, &length);
  EXPECT_EQ(length, 2);
  EXPECT_EQ(acedSSMemb(other, set), RTNORM);
  EXPECT_EQ(acedSSDel(other, set), RTNORM);
  EXPECT_EQ(acedSSMemb(other, set), RTERROR);
  ads_name found{};
  EXPECT_EQ(acedSSName(set, 0, found), RTNORM);
  EXPECT_EQ(found[0], entity[0]);
  EXPECT_EQ(acedSSName(set, 1, found), RTERROR);
  EXPECT_EQ(acedSSFree(set), RTNORM);
  EXPECT_EQ(acedSSFree(set), RTERROR);
  EXPECT_EQ(acedSSLength(set, &length), RTERROR);
}

TEST_F(Selection, ABoxSelectsInsideOrCrossing) {
  const ads_point a = {-1, -1, 0}, b = {6, 6, 0};
  ads_name set{};
  int length = 0;
  EXPECT_EQ(acedSSGet(L"W", a, b, nullptr, set), RTERROR);
  ASSERT_EQ(acedSSGet(L"C", a, b, nullptr, set), RTNORM);
  acedSSLength(set, &length);
  EXPECT_EQ(length, 2);
  acedSSFree(set);
}

TEST_F(Selection, ObjectsAreSelectedByClickAndByBox) {
  Then([&] { host.engine.EnterPoint({7, 5, 0}); });    // on the circle
  Then([&] { host.engine.EnterPoint({15, 15, 0}); });  // empty space: a box begins
  Then([&] { host.engine.EnterPoint({40, 40, 0}); });
  Then([&] { host.engine.EnterLine(L""); });
  Send(L"ERASE\n");
  ASSERT_EQ(Entities().size(), 1u);
  EXPECT_STREQ(Entities()[0]->layer(), L"墙线");
}

class PaperSpace : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    ASSERT_NE(host.documents.Open(MakeFile("small.dxf", hosttest::SmallDrawing())), nullptr);
  }
  Document& Drawing() { return *host.documents.Current(); }
};

TEST_F(PaperSpace, AViewportIsPickedByItsFrameAndFilteredByItsType) {
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"0"), VarResult::Ok);
  ASSERT_EQ(Entities().size(), 1u);
  AcDbEntity* viewport = EntityAt(*Drawing().database(), {0, 30, 0}, 1);  // its left edge
  ASSERT_NE(AcDbViewport::cast(viewport), nullptr);
  EXPECT_EQ(EntityAt(*Drawing().database(), {100, 50, 0}, 1), nullptr);  // its middle is empty
  for (const bool paper : {true, false}) {
    resbuf* filter = acutBuildList(RTDXF0, L"VIEW*", 67, paper ? 1 : 0, RTNONE);
    EXPECT_EQ(PassesFilter(*viewport, filter), paper);
    acutRelRb(filter);
  }
}

TEST_F(PaperSpace, ChangingTheSpaceClearsTheSelectionAndZoomsToTheExtents) {
  Drawing().viewports.Resize(400, 200);
  Drawing().pickFirst = {Entities()[0]->objectId()};
  ASSERT_EQ(host.variables.Set(L"TILEMODE", L"0"), VarResult::Ok);
  EXPECT_TRUE(Drawing().pickFirst.empty());
  EXPECT_EQ(ui.log.back(), L"var TILEMODE");
  EXPECT_NEAR(Drawing().view.ToWorld({200, 100}).x, 100, 1);  // the middle of the viewport
  Drawing().pickFirst = {Entities()[0]->objectId()};
  ASSERT_EQ(host.variables.Set(L"CVPORT", L"1"), VarResult::Ok);  // the current value
  EXPECT_EQ(Drawing().pickFirst.size(), 1u);
}
