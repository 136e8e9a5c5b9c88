// INSERT: blocks of the drawing and drawing files.
#include "host_fixture.h"

using namespace devhost;

class Insert : public hosttest::HostTest {
 protected:
  AcDbBlockReference* Only() {
    const auto all = Entities();
    return all.size() == 1 ? AcDbBlockReference::cast(all[0]) : nullptr;
  }
  std::size_t EntitiesOfBlock(const wchar_t* name) {
    AcDbObjectId id;
    AcDbBlockTable::cast(host.documents.Current()->database()->blockTableId().object())
        ->getAt(name, id);
    return id.isNull() ? 0 : AcDbBlockTableRecord::cast(id.object())->entities().size();
  }
};

constexpr char kChair[] =
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nWOOD\n70\n0\n62\n3\n6\nCONTINUOUS\n"
    "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nLEG\n70\n0\n10\n0\n20\n0\n30\n0\n"
    "0\nCIRCLE\n8\nWOOD\n10\n0\n20\n0\n40\n1\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
    "0\nLINE\n8\nWOOD\n10\n0\n20\n0\n11\n10\n21\n0\n0\nINSERT\n8\nWOOD\n2\nLEG\n10\n5\n20\n5\n"
    "0\nENDSEC\n0\nEOF\n";

TEST_F(Insert, ADrawingFileBecomesABlockWithItsBlocksAndLayers) {
  MakeFile("chair.dxf", kChair);
  NewDrawing();
  Send(L"INSERT chair.dxf\n100,50 2 90 ");
  AcDbBlockReference* reference = Only();
  ASSERT_NE(reference, nullptr);
  EXPECT_EQ(reference->isA(), AcDbBlockReference::desc());
  EXPECT_DOUBLE_EQ(reference->position().x, 100);
  EXPECT_NEAR(reference->rotation(), 1.5707963, 1e-6);
  EXPECT_NEAR(reference->blockTransform().scale(), 2, 1e-9);
  EXPECT_EQ(EntitiesOfBlock(L"CHAIR"), 2u);
  EXPECT_EQ(EntitiesOfBlock(L"LEG"), 1u);
  EXPECT_TRUE(AcDbLayerTable::cast(host.documents.Current()->database()->layerTableId().object())
                  ->has(L"wood"));
  AcDbExtents extents;
  ASSERT_EQ(reference->getGeomExtents(extents), Acad::eOk);
  EXPECT_NEAR(extents.maxPoint().y, 70, 1e-6);  // the line of 10, turned up and doubled
  EXPECT_EQ(Var(L"DBMOD"), L"1");
}

TEST_F(Insert, ABlockOfTheDrawingIsTakenAgainAndEnterKeepsScaleAndRotation) {
  MakeFile("chair.dxf", kChair);
  NewDrawing();
  Send(L"INSERT chair.dxf\n0,0 1 0 INSERT chair\n20,0 \n\n");
  ASSERT_EQ(Entities().size(), 2u);
  EXPECT_EQ(EntitiesOfBlock(L"chair"), 2u);
  auto* second = AcDbBlockReference::cast(Entities()[1]);
  EXPECT_DOUBLE_EQ(second->blockTransform().scale(), 1);
  EXPECT_DOUBLE_EQ(second->rotation(), 0);
}

TEST_F(Insert, AMissingBlockIsReportedAndNothingIsInserted) {
  NewDrawing();
  Send(L"INSERT nothing\n");
  EXPECT_NE(ui.printed.find(L"nothing"), std::wstring::npos);
  Send(L"INSERT *Model_Space\n");
  EXPECT_NE(ui.printed.find(L"块名无效"), std::wstring::npos);
  EXPECT_TRUE(Entities().empty());
  EXPECT_EQ(Var(L"DBMOD"), L"0");
}

TEST_F(Insert, AFileWithABlockOfItsOwnNameIsRefused) {
  MakeFile("leg.dxf", kChair);
  NewDrawing();
  Send(L"INSERT leg.dxf\n");
  EXPECT_NE(ui.printed.find(L"同名的块"), std::wstring::npos);
  EXPECT_TRUE(Entities().empty());
}
