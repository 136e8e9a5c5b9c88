// System variables through the published functions.
#include "host_fixture.h"

using namespace devhost;

class Variables : public hosttest::HostTest {
 protected:
  int SetShort(const wchar_t* name, short value) {
    resbuf rb{};
    rb.restype = RTSHORT;
    rb.resval.rint = value;
    return acedSetVar(name, &rb);
  }
};

TEST_F(Variables, AnUnknownNameIsAnError) {
  resbuf rb{};
  EXPECT_EQ(acedGetVar(L"NOSUCHVAR", &rb), RTERROR);
  EXPECT_EQ(SetShort(L"NOSUCHVAR", 1), RTERROR);
  EXPECT_EQ(acedGetVar(nullptr, &rb), RTERROR);
}

TEST_F(Variables, NamesAreFoundInAnyCase) {
  resbuf rb{};
  ASSERT_EQ(acedGetVar(L"CmdEcho", &rb), RTNORM);
  EXPECT_EQ(rb.restype, RTSHORT);
  EXPECT_EQ(rb.resval.rint, 1);
}

TEST_F(Variables, ReadOnlyVariablesAndValuesOutOfRangeAreRejected) {
  NewDrawing();
  EXPECT_EQ(SetShort(L"CMDACTIVE", 1), RTREJ);
  EXPECT_EQ(SetShort(L"PICKSTYLE", 4), RTREJ);
  EXPECT_EQ(SetShort(L"PICKSTYLE", 3), RTNORM);
  EXPECT_EQ(Var(L"PICKSTYLE"), L"3");
  ASSERT_EQ(SetShort(L"PICKSTYLE", 1), RTNORM);
}

TEST_F(Variables, AStringForANumberIsAnError) {
  resbuf rb{};
  rb.restype = RTSTR;
  rb.resval.rstring = const_cast<wchar_t*>(L"1");
  EXPECT_EQ(acedSetVar(L"CMDECHO", &rb), RTERROR);
}

TEST_F(Variables, RealsAreStoredExactly) {
  resbuf rb{};
  rb.restype = RTREAL;
  rb.resval.rreal = 0.1 + 0.2;
  ASSERT_EQ(acedSetVar(L"HPSCALE", &rb), RTNORM);
  resbuf back{};
  ASSERT_EQ(acedGetVar(L"HPSCALE", &back), RTNORM);
  EXPECT_EQ(back.restype, RTREAL);
  EXPECT_EQ(back.resval.rreal, 0.1 + 0.2);
}

TEST_F(Variables, StringsAreFreedByTheCaller) {
  NewDrawing();
  resbuf rb{};
  ASSERT_EQ(acedGetVar(L"DWGNAME", &rb), RTNORM);
  ASSERT_EQ(rb.restype, RTSTR);
  EXPECT_EQ(std::wstring(rb.resval.rstring), host.documents.Current()->Title());
  free(rb.resval.rstring);
}

TEST_F(Variables, WritingIsRecordedAndReportedToTheWindows) {
  NewDrawing();
  ASSERT_EQ(SetShort(L"GRIDMODE", 1), RTNORM);
  EXPECT_EQ(Journal("var"), std::vector<std::string>{"GRIDMODE 1"});
  EXPECT_EQ(ui.log.back(), L"var GRIDMODE");
}

TEST_F(Variables, VariablesOfADrawingBelongToIt) {
  Document& first = NewDrawing();
  ASSERT_EQ(SetShort(L"ORTHOMODE", 1), RTNORM);
  NewDrawing();
  EXPECT_EQ(Var(L"ORTHOMODE"), L"0");
  host.documents.Activate(&first);
  EXPECT_EQ(Var(L"ORTHOMODE"), L"1");
}

TEST_F(Variables, WithoutADrawingOnlyVariablesOfTheProgramExist) {
  EXPECT_EQ(Var(L"CPROFILE"), L"测试");
  EXPECT_EQ(Var(L"ACADVER"), L"24.0");
  resbuf rb{};
  EXPECT_EQ(acedGetVar(L"TILEMODE", &rb), RTERROR);
}

TEST_F(Variables, LeavingTheModelTabChangesSpaceViewportAndTab) {
  Document& drawing = NewDrawing();
  const AcDbObjectId model = drawing.database()->currentSpaceId();
  EXPECT_EQ(Var(L"CVPORT"), L"2");
  ASSERT_EQ(SetShort(L"TILEMODE", 0), RTNORM);
  EXPECT_EQ(Var(L"CVPORT"), L"1");
  EXPECT_EQ(Var(L"CTAB"), L"Layout1");
  EXPECT_NE(drawing.database()->currentSpaceId(), model);
  ASSERT_EQ(SetShort(L"CVPORT", 2), RTNORM);  // enters a viewport: model space again
  EXPECT_EQ(drawing.database()->currentSpaceId(), model);
  ASSERT_EQ(SetShort(L"TILEMODE", 1), RTNORM);
  EXPECT_EQ(Var(L"CVPORT"), L"2");
}

TEST_F(Variables, PointsAreReturnedAsPoints) {
  NewDrawing();
  host.documents.Current()->view.Resize(640, 480);
  resbuf rb{};
  ASSERT_EQ(acedGetVar(L"SCREENSIZE", &rb), RTNORM);
  EXPECT_EQ(rb.restype, RT3DPOINT);
  EXPECT_EQ(rb.resval.rpoint[0], 640);
  EXPECT_EQ(rb.resval.rpoint[1], 480);
}

TEST_F(Variables, TheApertureIsASettingOfTheProgramInPixels) {
  resbuf rb{};
  ASSERT_EQ(acedGetVar(L"APERTURE", &rb), RTNORM);
  EXPECT_EQ(rb.restype, RTSHORT);
  EXPECT_EQ(rb.resval.rint, 10);
  EXPECT_EQ(SetShort(L"APERTURE", 0), RTNORM);
  EXPECT_EQ(Var(L"APERTURE"), L"0");
  EXPECT_EQ(SetShort(L"APERTURE", 51), RTREJ);
  EXPECT_EQ(SetShort(L"APERTURE", 10), RTNORM);
}
