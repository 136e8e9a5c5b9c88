// Picking objects inside block references, and one object with a filter.
#include "kernel/pick_object.h"

#include <cmath>
#include <numbers>

#include "kernel/entities/block_inserts.h"
#include "pick_fixture.h"

namespace {

constexpr double kQuarter = std::numbers::pi / 2;

class NestedPick : public kerneltest::PickTest {
 protected:
  struct Answer {
    int status = 0;
    TEntitySet entity;
    AcGePoint3d point;
    AcGeMatrix3d xform;
  };
  Answer Pick(const std::wstring& input, const wchar_t* types, bool alsoPlain = true) {
    Answer answer;
    Run(input, [&] {
      TRBList filter;
      if (types) filter.AppendString(0, types);
      answer.status = TaPhsU12hdLhsj3(L"\nPick<exit>", answer.entity, answer.point, answer.xform,
                                      alsoPlain, filter);
    });
    return answer;
  }

  static void ExpectMaps(const AcGeMatrix3d& matrix, const AcGePoint3d& from,
                         const AcGePoint3d& to) {
    const AcGePoint3d mapped = matrix * from;
    EXPECT_NEAR(to.x, mapped.x, 1e-6);
    EXPECT_NEAR(to.y, mapped.y, 1e-6);
  }
};

TEST_F(NestedPick, FindsTheTextInsideATurnedAndScaledReference) {
  auto* block = AddBlock(L"ROOM");
  auto* text = TextIn(block);
  Insert(nullptr, block, {5000, 5000, 0}, kQuarter, 2);
  // The text is from 100,0 to 200,100 of the block: 4800 to 5000, 5200 to 5400 of the world.
  const Answer answer = Pick(L"4900,5300\n", L"TEXT");
  ASSERT_EQ(RTNORM, answer.status);
  EXPECT_EQ(text->objectId(), answer.entity.ObjectId());
  EXPECT_DOUBLE_EQ(4900, answer.point.x);
  ExpectMaps(answer.xform, {100, 0, 0}, {5000, 5200, 0});
  ExpectMaps(answer.xform, {200, 100, 0}, {4800, 5400, 0});
}

TEST_F(NestedPick, FindsTheTextThroughReferencesInsideReferences) {
  auto *inner = AddBlock(L"INNER"), *outer = AddBlock(L"OUTER");
  auto* text = TextIn(inner);
  auto* inside = Insert(outer, inner, {1000, 0, 0}, kQuarter);
  auto* top = Insert(nullptr, outer, {2000, 2000, 0}, 0, 3);
  // 150,50 of the inner block is 950,150 of the outer one and 4850,2450 of the world.
  const Answer answer = Pick(L"4850,2450\n", L"TEXT");
  ASSERT_EQ(RTNORM, answer.status);
  EXPECT_EQ(text->objectId(), answer.entity.ObjectId());
  ExpectMaps(answer.xform, {150, 50, 0}, {4850, 2450, 0});
  Run(L"4850,2450\n", [&] {
    ads_name name{};
    ads_point at{};
    ads_matrix matrix{};
    resbuf* references = nullptr;
    ASSERT_EQ(RTNORM, acedNEntSelP(L"", name, at, 0, matrix, &references));
    ASSERT_TRUE(references && references->rbnext && !references->rbnext->rbnext);
    AcDbObjectId first, second;
    acdbGetObjectId(first, references->resval.rlname);
    acdbGetObjectId(second, references->rbnext->resval.rlname);
    EXPECT_EQ(inside->objectId(), first) << "the innermost first";
    EXPECT_EQ(top->objectId(), second);
    acutRelRb(references);
  });
}

TEST_F(NestedPick, ThePointIsThatOfTheUserAndTheMatrixLeadsToTheWorld) {
  auto* block = AddBlock(L"ROOM");
  auto* text = TextIn(block);
  Insert(nullptr, block, {5000, 5000, 0});
  Send(L"UCS O 1000,2000\n");
  const Answer answer = Pick(L"4150,3050\n", L"TEXT");
  ASSERT_EQ(RTNORM, answer.status);
  EXPECT_EQ(text->objectId(), answer.entity.ObjectId());
  EXPECT_DOUBLE_EQ(4150, answer.point.x);
  EXPECT_DOUBLE_EQ(3050, answer.point.y);
  ExpectMaps(answer.xform, {0, 0, 0}, {5000, 5000, 0});
}

TEST_F(NestedPick, TypesWithBlanksFindAllThreeKinds) {
  const wchar_t* const types = L"QVX_*, TEXT, ATTRIB";
  MakeFile("room.dxf",
           "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nROOM\n10\n0\n20\n0\n0\nTEXT\n8\n0\n100\nAcDbText\n"
           "10\n100\n20\n0\n40\n100\n1\nA\n0\nQVX_TEXT\n8\n0\n100\nQvxDbText\n10\n100\n20\n1000\n"
           "40\n100\n1\nB\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n"
           "100\nAcDbBlockReference\n66\n1\n2\nROOM\n10\n5000\n20\n5000\n0\nATTRIB\n8\n0\n100\n"
           "AcDbText\n10\n5100\n20\n7000\n40\n100\n1\nC\n100\nAcDbAttribute\n2\nTAG\n70\n0\n0\n"
           "SEQEND\n8\n0\n0\nENDSEC\n0\nEOF\n");
  ASSERT_TRUE(host.documents.Open(L"room.dxf"));
  ShowPlan();
  EXPECT_TRUE(Pick(L"5130,5050\n", types).entity.Is(L"TEXT"));
  EXPECT_TRUE(Pick(L"5130,6050\n", types).entity.Is(L"QVX_TEXT"));
  EXPECT_TRUE(Pick(L"5130,7050\n", types).entity.Is(L"ATTRIB"));
  EXPECT_EQ(kPickMissed, Pick(L"5130,6050\n", L"TEXT, ATTRIB").status);
}

TEST_F(NestedPick, AMissHasItsOwnCodeAndEnterAndEscapeEnd) {
  auto* block = AddBlock(L"ROOM");
  TextIn(block);
  block->appendAcDbEntity(new AcDbLine({0, 500, 0}, {500, 500, 0}));
  Insert(nullptr, block, {5000, 5000, 0});
  EXPECT_EQ(kPickMissed, Pick(L"1000,1000\n", L"TEXT").status) << "nothing is there";
  EXPECT_EQ(kPickMissed, Pick(L"5250,5500\n", L"TEXT").status) << "another type";
  EXPECT_EQ(RTNORM, Pick(L"5250,5500\n", nullptr).status) << "no filter";
  EXPECT_EQ(RTERROR, Pick(L"\n", L"TEXT").status) << "Enter";
  Then([this] { host.engine.PressEscape(); });
  EXPECT_EQ(RTCAN, Pick(L"", L"TEXT").status) << "Escape";
  EXPECT_NE(RTERROR, kPickMissed);
  EXPECT_NE(RTCAN, kPickMissed);
  EXPECT_NE(RTNORM, kPickMissed);
}

TEST_F(NestedPick, PlainObjectsAreFoundOnlyWhenTheyAreAskedFor) {
  auto* text = new AcDbText({1000, 1000, 0}, L"图", 100);
  Append(text);
  const Answer answer = Pick(L"1050,1050\n", L"TEXT", true);
  EXPECT_EQ(text->objectId(), answer.entity.ObjectId());
  ExpectMaps(answer.xform, {3, 4, 0}, {3, 4, 0});
  EXPECT_EQ(kPickMissed, Pick(L"1050,1050\n", L"TEXT", false).status);
}

TEST_F(NestedPick, FindsTheCopyOfAnArrayThatWasPicked) {
  MakeFile(
      "array.dxf",
      "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nROOM\n10\n0\n20\n0\n0\nTEXT\n8\n0\n100\nAcDbText\n"
      "10\n100\n20\n0\n40\n100\n1\nA\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n"
      "8\n0\n100\nAcDbBlockReference\n2\nROOM\n10\n1000\n20\n1000\n70\n3\n44\n2000\n0\nENDSEC\n"
      "0\nEOF\n");
  ASSERT_TRUE(host.documents.Open(L"array.dxf"));
  ShowPlan();
  const Answer answer = Pick(L"5130,1050\n", L"TEXT");
  ASSERT_EQ(RTNORM, answer.status);
  ExpectMaps(answer.xform, {0, 0, 0}, {5000, 1000, 0});
}

TEST_F(NestedPick, HiddenPartsAreNotFound) {
  auto* block = AddBlock(L"ROOM");
  auto* text = TextIn(block);
  auto* line = new AcDbLine({100, 50, 0}, {200, 50, 0});
  block->appendAcDbEntity(line);
  Insert(nullptr, block, {5000, 5000, 0});
  auto* off = new AcDbLayerTableRecord;
  off->setName(L"OFF");
  off->setColorIndex(-7);
  AcDbLayerTable::cast(host.documents.Current()->database()->layerTableId().object())->add(off);
  text->setLayer(L"OFF");
  EXPECT_EQ(kPickMissed, Pick(L"5150,5050\n", L"TEXT").status);
  EXPECT_EQ(line->objectId(), Pick(L"5150,5050\n", L"LINE").entity.ObjectId());
}

TEST_F(NestedPick, ABlockThatRefersToItselfEnds) {
  auto* block = AddBlock(L"LOOP");
  auto* text = TextIn(block);
  Insert(block, block, {0, 0, 0});
  Insert(nullptr, block, {5000, 5000, 0});
  EXPECT_EQ(text->objectId(), Pick(L"5150,5050\n", L"TEXT").entity.ObjectId());
}

TEST_F(NestedPick, AReferenceWithoutAPartThereIsTheObjectItself) {
  auto* block = AddBlock(L"ROOM");
  TextIn(block);
  auto* symbol = new TDbBlockInsert({5000, 5000, 0}, block->objectId());
  Append(symbol);
  symbol->SetCaption(L"洗手盆");
  const AcGePoint3d caption = symbol->SubTexts()[0].at;
  const Answer answer = Pick(
      std::to_wstring(caption.x + 50) + L"," + std::to_wstring(caption.y + 50) + L"\n", L"QVX_*");
  EXPECT_EQ(symbol->objectId(), answer.entity.ObjectId());
}

TEST_F(NestedPick, APointOfTheCallerNeedsNoPrompt) {
  auto* block = AddBlock(L"ROOM");
  auto* text = TextIn(block);
  Insert(nullptr, block, {5000, 5000, 0});
  ads_name name{};
  ads_point at = {5150, 5050, 0};
  ASSERT_EQ(RTNORM, acedNEntSelP(nullptr, name, at, 1, nullptr, nullptr));
  AcDbObjectId id;
  acdbGetObjectId(id, name);
  EXPECT_EQ(text->objectId(), id);
  at[0] = 0;
  EXPECT_EQ(RTERROR, acedNEntSelP(nullptr, name, at, 1, nullptr, nullptr));
  EXPECT_EQ(L"7", Var(L"ERRNO"));
}

TEST_F(NestedPick, OneObjectIsPickedWithAFilter) {
  auto* text = new QvxDbText;
  text->label = L"客厅";
  text->width = 100;
  Prepare(text, {1000, 1000, 0}, {});
  Append(new AcDbLine({3000, 3000, 0}, {4000, 3000, 0}));
  const auto pick = [&](const std::wstring& input, TEntitySet& entity) {
    int status = 0;
    Run(input, [&] {
      TRBList filter;
      filter.AppendString(0, L"QVX_*");
      status = TaPh23shdLhsj1(L"\n选择需要修改文字的图元<退出>:", entity, filter);
    });
    return status;
  };
  TEntitySet entity;
  EXPECT_EQ(kPickMissed, pick(L"3500,3000\n", entity)) << "a line";
  EXPECT_TRUE(entity.IsEmpty());
  EXPECT_EQ(kPickMissed, pick(L"9000,9000\n", entity)) << "nothing";
  EXPECT_EQ(RTERROR, pick(L"\n", entity));
  Then([this] { host.engine.PressEscape(); });
  EXPECT_EQ(RTCAN, pick(L"", entity));
  EXPECT_EQ(RTNORM, pick(L"1050,1050\n", entity));
  EXPECT_EQ(text->objectId(), entity.ObjectId());
}

TEST_F(NestedPick, TheApertureGrowsWithTheHeightOfTheView) {
  const double near = GetApertureWcs();
  EXPECT_NEAR(10 / host.documents.Current()->view.PixelsPerUnit(), near, 1e-9);
  ShowPlan(20000);
  EXPECT_NEAR(2 * near, GetApertureWcs(), 1e-9);
  host.variables.Set(L"APERTURE", L"0");
  EXPECT_EQ(0, GetApertureWcs());
  host.variables.Set(L"APERTURE", L"10");
  acDocManager->closeDocument(acDocManager->curDocument());
  EXPECT_EQ(0, GetApertureWcs()) << "no drawing";
}

}  // namespace
