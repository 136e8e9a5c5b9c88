// Commands on one object: GRIP_STRETCH, TEXTEDIT.
#include <algorithm>

#include "devhost/core/entities/grips.h"
#include "devhost/core/selection/selection.h"
#include "host_fixture.h"

using namespace devhost;

class ObjectCommands : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
    Send(L"LINE 0,0 10,0 \n");
  }
  Document& Drawing() { return *host.documents.Current(); }
  AcDbLine& Line() { return *AcDbLine::cast(Entities()[0]); }
  void Stretch(const AcGePoint3d& grip) {
    EXPECT_TRUE(host.engine.StretchGrip(Drawing(), Line().objectId(), grip));
    RunAll();
  }
};

TEST_F(ObjectCommands, AGripIsStretchedUnderItsCommandNameWithTheSelectionAtHand) {
  SetPickFirst(Drawing(), {Line().objectId()});
  std::wstring names, active;
  int selected = -1;
  Then([&] {
    names = Var(L"CMDNAMES");
    active = Var(L"CMDACTIVE");
    ads_name set{};
    if (acedSSGet(L"I", nullptr, nullptr, nullptr, set) == RTNORM) acedSSLength(set, &selected);
    acedSSFree(set);
    host.engine.EnterPoint({20, 7, 0});
  });
  Stretch({10, 0, 0});
  EXPECT_EQ(names, L"GRIP_STRETCH");
  EXPECT_EQ(active, L"1");
  EXPECT_EQ(selected, 1);
  EXPECT_NEAR(Line().endPoint().distanceTo({20, 7, 0}), 0, 1e-9);
  EXPECT_NEAR(Line().startPoint().distanceTo({0, 0, 0}), 0, 1e-9);
  EXPECT_EQ(Drawing().pickFirst.size(), 1u) << "the object stays selected";
  EXPECT_EQ(UndoLatestStep(Drawing()), L"GRIP_STRETCH");
  EXPECT_NEAR(Line().endPoint().distanceTo({10, 0, 0}), 0, 1e-9);
}

TEST_F(ObjectCommands, EscapeLeavesTheObjectAndTheSelection) {
  SetPickFirst(Drawing(), {Line().objectId()});
  Then([&] { host.engine.PressEscape(); });
  Stretch({10, 0, 0});
  EXPECT_NEAR(Line().endPoint().distanceTo({10, 0, 0}), 0, 1e-9);
  EXPECT_EQ(Drawing().pickFirst.size(), 1u);
  EXPECT_EQ(Var(L"CMDNAMES"), L"");
}

TEST_F(ObjectCommands, EnterDoesNotRepeatAStretchAndATypedOneHasNoGrip) {
  Then([&] { host.engine.PressEscape(); });
  Stretch({10, 0, 0});
  EXPECT_EQ(Drawing().lastCommand, L"LINE");
  ui.printed.clear();
  Send(L"GRIP_STRETCH\n");
  EXPECT_NE(ui.printed.find(L"没有按下夹点"), std::wstring::npos);
  EXPECT_NEAR(Line().endPoint().distanceTo({10, 0, 0}), 0, 1e-9);
}

TEST_F(ObjectCommands, NothingStartsWhileACommandRunsOrInputIsIncomplete) {
  bool started = true;
  Then([&] {
    started = host.engine.StretchGrip(Drawing(), Line().objectId(), {10, 0, 0});
    host.engine.PressEscape();
  });
  Send(L"LINE\n");
  EXPECT_FALSE(started);
  Send(L"(setq a");
  EXPECT_FALSE(host.engine.StretchGrip(Drawing(), Line().objectId(), {10, 0, 0}));
  EXPECT_FALSE(host.engine.EditText(Drawing(), Line().objectId()));
}

TEST_F(ObjectCommands, GripsMoveAVertexARadiusOrTheWholeEntity) {
  AcDbPolyline polyline;
  polyline.addVertexAt(0, {0, 0, 0});
  polyline.addVertexAt(1, {5, 0, 0});
  EXPECT_TRUE(MoveGrip(polyline, {5, 0, 0}, {5, 9, 0}));
  AcGePoint3d at;
  EXPECT_EQ(polyline.getPointAt(1, at), Acad::eOk);
  EXPECT_NEAR(at.distanceTo({5, 9, 0}), 0, 1e-9);
  EXPECT_EQ(polyline.getPointAt(0, at), Acad::eOk);
  EXPECT_NEAR(at.distanceTo({0, 0, 0}), 0, 1e-9);
  EXPECT_EQ(polyline.getPointAt(2, at), Acad::eInvalidInput);
  AcDbCircle circle({10, 10, 0}, 2);
  EXPECT_TRUE(MoveGrip(circle, {12, 10, 0}, {10, 15, 0}));
  EXPECT_NEAR(circle.radius(), 5, 1e-9);
  EXPECT_TRUE(MoveGrip(circle, {10, 10, 0}, {0, 0, 0}));
  EXPECT_NEAR(circle.center().distanceTo({0, 0, 0}), 0, 1e-9);
  AcDbText text({1, 1, 0}, L"a", 2);
  EXPECT_TRUE(MoveGrip(text, {1, 1, 0}, {3, 4, 0}));
  EXPECT_NEAR(text.position().distanceTo({3, 4, 0}), 0, 1e-9);
  AcDbLine line({0, 0, 0}, {10, 0, 0});
  EXPECT_TRUE(MoveGrip(line, {5, 0, 0}, {5, 5, 0}));
  EXPECT_NEAR(line.startPoint().distanceTo({0, 5, 0}), 0, 1e-9);
}

TEST_F(ObjectCommands, ATextIsEditedAndTheEditUndone) {
  auto* text = new AcDbText({0, 20, 0}, L"旧 text", 2);
  AcDbBlockTableRecord::cast(Drawing().database()->currentSpaceId().object())
      ->appendAcDbEntity(text);
  Then([&] {
    EXPECT_EQ(Var(L"CMDNAMES"), L"TEXTEDIT");
    EXPECT_TRUE(host.engine.AcceptsBlanks());
    host.engine.EnterLine(L"new text 2");
  });
  ASSERT_TRUE(host.engine.EditText(Drawing(), text->objectId()));
  RunAll();
  EXPECT_STREQ(text->textStringConst(), L"new text 2");
  EXPECT_EQ(UndoLatestStep(Drawing()), L"TEXTEDIT");
  EXPECT_STREQ(text->textStringConst(), L"旧 text");
}

TEST_F(ObjectCommands, EnterAloneAndEscapeKeepTheText) {
  auto* text = new AcDbText({0, 20, 0}, L"kept", 2);
  AcDbBlockTableRecord::cast(Drawing().database()->currentSpaceId().object())
      ->appendAcDbEntity(text);
  for (const bool enter : {true, false}) {
    Then([&] { enter ? host.engine.EnterLine(L"") : host.engine.PressEscape(); });
    ASSERT_TRUE(host.engine.EditText(Drawing(), text->objectId()));
    RunAll();
    EXPECT_STREQ(text->textStringConst(), L"kept");
  }
}

TEST_F(ObjectCommands, ATypedEditAsksForTheTextAndRefusesOtherObjects) {
  ui.printed.clear();
  Then([&] { host.engine.EnterPoint({5, 0, 0}); });
  Send(L"DDEDIT\n");
  EXPECT_NE(ui.printed.find(L"选定的对象不是文字"), std::wstring::npos);
}
