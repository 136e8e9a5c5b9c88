// acedCommandS: the kinds of input, and the end of the nested command.
#include "acedcmdnf.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

std::function<void()> g_body;

class NestedCommand : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
    static_cast<AcEdCommandStack&>(host.commands)
        .addCommand(
            L"TEST", L"TOUTER", L"TOUTER", ACRX_CMD_MODAL, +[] { g_body(); });
  }
  void TearDown() override {
    host.commands.removeGroup(L"TEST");
    HostTest::TearDown();
  }
  void Run(std::function<void()> body) {
    g_body = std::move(body);
    Send(L"TOUTER\n");
  }
};

// A set of the last entity.
void MakeSet(ads_name set) { ASSERT_EQ(RTNORM, acedSSGet(L"L", nullptr, nullptr, nullptr, set)); }

}  // namespace

TEST_F(NestedCommand, TakesPointsInUserCoordinates) {
  Send(L"UCS 100,0\n");
  Run([] {
    const ads_point from = {1, 2, 0}, to = {3, 4, 9};
    acedCommandS(RTSTR, L"LINE", RT3DPOINT, from, RTPOINT, to, RTSTR, L"", RTNONE);
  });
  const auto* line = AcDbLine::cast(Entities().at(0));
  EXPECT_DOUBLE_EQ(101, line->startPoint().x);
  EXPECT_DOUBLE_EQ(103, line->endPoint().x);
  EXPECT_DOUBLE_EQ(0, line->endPoint().z);
}

TEST_F(NestedCommand, TakesNumbers) {
  Run([] {
    acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"0,0", RTREAL, 2.5, RTNONE);
    acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"0,0", RTSHORT, 4, RTNONE);
  });
  EXPECT_DOUBLE_EQ(2.5, AcDbCircle::cast(Entities().at(0))->radius());
  EXPECT_DOUBLE_EQ(4, AcDbCircle::cast(Entities().at(1))->radius());
}

TEST_F(NestedCommand, TakesASelectionSetAndAnEntity) {
  Send(L"LINE 0,0 1,0 \nLINE 0,5 1,5 \n");
  Run([this] {
    ads_name set{}, first{};
    MakeSet(set);
    acdbGetAdsName(first, Entities()[0]->objectId());
    acedCommandS(RTSTR, L"ERASE", RTPICKS, set, RTENAME, first, RTSTR, L"", RTNONE);
    acedSSFree(set);
  });
  EXPECT_TRUE(Entities().empty());
}

TEST_F(NestedCommand, AGivenSelectionIsUsedInsteadOfThePickFirstSet) {
  Send(L"LINE 0,0 1,0 \nLINE 0,5 1,5 \n");
  AcDbEntity* kept = Entities()[0];
  Run([&] {
    ads_name set{}, name{}, picked{};
    MakeSet(set);
    acdbGetAdsName(name, kept->objectId());
    acedSSAdd(name, nullptr, picked);
    acedSSSetFirst(picked, picked);
    acedCommandS(RTSTR, L"ERASE", RTPICKS, set, RTSTR, L"", RTNONE);
    acedSSFree(set);
    acedSSFree(picked);
  });
  EXPECT_EQ(std::vector<AcDbEntity*>{kept}, Entities());
}

TEST_F(NestedCommand, ASelectionThatIsGoneRunsNothing) {
  int status = 0;
  Send(L"LINE 0,0 1,0 \n");
  Run([&] {
    ads_name set{};
    MakeSet(set);
    acedSSFree(set);
    status = acedCommandS(RTSTR, L"ERASE", RTPICKS, set, RTSTR, L"", RTNONE);
  });
  EXPECT_EQ(RTERROR, status);
  EXPECT_EQ(1u, Entities().size());
}

TEST_F(NestedCommand, AnObjectIsNoAnswerToARequestForText) {
  Send(L"TEXT 0,0 2.5 0 a\n");
  Run([] {
    ads_name set{};
    MakeSet(set);
    acedCommandS(RTSTR, L"CIRCLE", RTPICKS, set, RTSTR, L"0,0", RTREAL, 1.0, RTNONE);
    acedSSFree(set);
  });
  EXPECT_EQ(2u, Entities().size());
}

TEST_F(NestedCommand, AStringIsOneAnswerWithItsBlanks) {
  Run([] {
    acedCommandS(RTSTR, L"TEXT", RTSTR, L"0,0", RTSTR, L"2.5", RTSTR, L"0", RTSTR, L"a b  c",
                 RTNONE);
  });
  EXPECT_STREQ(L"a b  c", AcDbText::cast(Entities().at(0))->textStringConst());
}

TEST_F(NestedCommand, LeavesTheTextThatWaitsForTheOuterCommand) {
  ACHAR answer[140] = L"";
  g_body = [&] {
    acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"0,0", RTREAL, 1.0, RTNONE);
    acedGetString(0, L"", answer);
  };
  Send(L"TOUTER later\n");
  EXPECT_STREQ(L"later", answer);
  EXPECT_EQ(1u, Entities().size());
}

TEST_F(NestedCommand, HasEndedWhenTheCallReturns) {
  std::wstring names;
  Run([&] {
    acedCommandS(RTSTR, L"LINE", RTSTR, L"0,0", RTNONE);  // no end: the request is cancelled
    names = Var(L"CMDNAMES");
  });
  EXPECT_EQ(L"TOUTER", names);
}

TEST_F(NestedCommand, BelongsToTheStepOfTheOuterCommand) {
  Run([] {
    acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"0,0", RTREAL, 1.0, RTNONE);
    acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"5,5", RTREAL, 1.0, RTNONE);
  });
  ASSERT_EQ(2u, Entities().size());
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());
}
