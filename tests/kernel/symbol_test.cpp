// The sample's class derived from the host's block reference, and its way through a drawing file.
#include "devhost/core/dxf/drawing_file.h"
#include "standins/samples/design/symbol_entity.h"
#include "tests/hostcore/host_fixture.h"

namespace {

class Symbol : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    BeginSymbolEntity();
    NewDrawing();
    AcDbDatabase& database = *host.documents.Current()->database();
    auto* block = new AcDbBlockTableRecord;
    block->setName(L"CHAIR");
    AcDbBlockTable::cast(database.blockTableId().object())->add(block);
    block->appendAcDbEntity(new AcDbLine({0, 0, 0}, {10, 0, 0}));
    auto* symbol = new QvxDbSymbol({100, 50, 0}, block->objectId());
    symbol->label = L"椅子";
    AcDbBlockTableRecord::cast(database.currentSpaceId().object())->appendAcDbEntity(symbol);
  }
  void TearDown() override {
    HostTest::TearDown();
    EndSymbolEntity();
  }
};

}  // namespace

TEST_F(Symbol, IsABlockReferenceButNotExactlyThatClass) {
  AcDbEntity* entity = Entities().at(0);
  EXPECT_NE(AcDbBlockReference::cast(entity), nullptr);
  EXPECT_NE(entity->isA(), AcDbBlockReference::desc());
  EXPECT_TRUE(entity->isA()->isDerivedFrom(AcDbBlockReference::desc()));
  EXPECT_STREQ(entity->isA()->dxfName(), L"QVX_SYMBOL");
}

TEST_F(Symbol, ADrawingFileKeepsItsBlockPlaceAndLabel) {
  const std::wstring path = (folder / "symbol.dxf").wstring();
  Send(L"SAVEAS " + path + L"\nCLOSE\n");
  ASSERT_NE(host.documents.Open(path), nullptr);
  ASSERT_EQ(Entities().size(), 1u);
  const auto* symbol = QvxDbSymbol::cast(Entities()[0]);
  ASSERT_NE(symbol, nullptr);
  EXPECT_EQ(symbol->label, L"椅子");
  EXPECT_DOUBLE_EQ(symbol->position().x, 100);
  EXPECT_FALSE(symbol->blockTableRecord().isNull());
  AcDbExtents extents;
  ASSERT_EQ(symbol->getGeomExtents(extents), Acad::eOk);
  EXPECT_DOUBLE_EQ(extents.maxPoint().x, 110);
}

TEST_F(Symbol, WithoutItsClassItIsKeptAndBecomesRealAgain) {
  EndSymbolEntity();
  EXPECT_EQ(AcDbBlockReference::cast(Entities().at(0)), nullptr);
  BeginSymbolEntity();
  const auto* symbol = QvxDbSymbol::cast(Entities().at(0));
  ASSERT_NE(symbol, nullptr);
  EXPECT_EQ(symbol->label, L"椅子");
}
