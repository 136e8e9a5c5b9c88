// Taking commands back.
#include "host_fixture.h"

using namespace devhost;

class Undo : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
  }
  double FirstX() { return static_cast<AcDbLine*>(Entities().at(0))->startPoint().x; }
};

TEST_F(Undo, OneStepTakesBackOneCommandWhole) {
  Send(L"LINE 0,0 1,0 2,0 3,0 \n");
  EXPECT_EQ(Entities().size(), 3u);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());
  Send(L"U\n");
  EXPECT_NE(ui.printed.find(L"所有内容都已放弃"), std::wstring::npos);
}

TEST_F(Undo, WhatWasErasedComesBackAndStaysBackAtTheNextStep) {
  Send(L"LINE 0,0 1,0 \n");
  Send(L"ERASE ALL \n");
  EXPECT_TRUE(Entities().empty());
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 1u);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());  // the line itself, not the erasing again
}

TEST_F(Undo, WhatWasMovedGoesBack) {
  Send(L"LINE 5,0 6,0 \n");
  Send(L"MOVE ALL \n0,0 10,0\n");
  EXPECT_EQ(FirstX(), 15);
  Send(L"U\n");
  EXPECT_EQ(FirstX(), 5);
}

TEST_F(Undo, AnAttributedReferenceGoesBackOnce) {
  AcDbDatabase& database = *host.documents.Current()->database();
  auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  auto* reference = new AcDbBlockReference({1, 1, 0}, database.currentSpaceId());
  space->appendAcDbEntity(reference);
  auto* attribute = new AcDbAttribute;
  ASSERT_EQ(reference->appendAttribute(attribute), Acad::eOk);
  Send(L"MOVE ALL \n0,0 10,0\n");
  EXPECT_EQ(reference->position().x, 11);
  EXPECT_EQ(attribute->position().x, 10);
  Send(L"U\n");
  EXPECT_EQ(reference->position().x, 1);
  EXPECT_EQ(attribute->position().x, 0);
}

TEST_F(Undo, SeveralStepsAndGroups) {
  for (int i = 0; i < 5; ++i) Send(L"LINE 0,0 1,0 \n");
  Send(L"UNDO 2\n");
  EXPECT_EQ(Entities().size(), 3u);
  Send(L"UNDO BE LINE 0,0 2,0 \nLINE 0,0 3,0 \nUNDO E ");
  EXPECT_EQ(Entities().size(), 5u);
  Send(L"U\n");
  EXPECT_EQ(Entities().size(), 3u);
}

TEST_F(Undo, StepsBelongToTheirDrawing) {
  Document* first = host.documents.Current();
  Send(L"LINE 0,0 1,0 \n");
  NewDrawing();
  Send(L"U\n");
  host.documents.Activate(first);
  EXPECT_EQ(Entities().size(), 1u);
}
