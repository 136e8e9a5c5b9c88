// Reading drawings, intact and damaged.
#include <gtest/gtest.h>

#include <random>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"
#include "small_drawing.h"

using namespace devhost;
using hosttest::Lines;
using hosttest::SmallDrawing;

namespace {

// A database read from text; the host registers its classes.
class Read {
 public:
  explicit Read(const std::string& text) {
    TheHost();
    report = ReadDrawingText(text, L"t.dxf", database);
  }
  AcDbObject* At(std::uint64_t handle) {
    AcDbObjectId id;
    return database.getAcDbObjectId(id, false, AcDbHandle(handle)) == Acad::eOk ? id.object()
                                                                                : nullptr;
  }
  template <class T>
  T* As(std::uint64_t handle) {
    return T::cast(At(handle));
  }
  std::size_t InSpace(const wchar_t* name) {
    AcDbObjectId id;
    AcDbBlockTable::cast(database.blockTableId().object())->getAt(name, id);
    return AcDbBlockTableRecord::cast(id.object())->entities().size();
  }

  AcDbDatabase database;
  DrawingReport report;
};

std::string Entities(const std::string& lines) {
  return Lines({"0", "SECTION", "2", "ENTITIES"}) + lines + Lines({"0", "ENDSEC", "0", "EOF"});
}

}  // namespace

TEST(DxfRead, AnIntactFileGivesNoMessage) {
  const Read r(SmallDrawing());
  EXPECT_TRUE(r.report.readAnything);
  EXPECT_EQ(r.report.message, L"");
}

TEST(DxfRead, EntitiesKeepTheirHandlesClassesAndCommonGroups) {
  Read r(SmallDrawing());
  auto* line = r.As<AcDbLine>(0x30);
  ASSERT_NE(line, nullptr);
  EXPECT_STREQ(line->layer(), L"墙线");
  EXPECT_STREQ(line->linetype(), L"DASHED");
  EXPECT_EQ(line->colorIndex(), 1);
  EXPECT_EQ(line->endPoint().x, 10);
  EXPECT_EQ(line->ownerId().handle().value(), 0x1Fu);
  ASSERT_NE(r.As<AcDbCircle>(0x31), nullptr);
  EXPECT_EQ(r.As<AcDbCircle>(0x31)->radius(), 2.5);
  EXPECT_NEAR(r.As<AcDbArc>(0x32)->endAngle(), 1.5707963, 1e-6);
  EXPECT_EQ(r.As<AcDbPolyline>(0x33)->numVerts(), 3u);
  EXPECT_TRUE(r.As<AcDbPolyline>(0x33)->isClosed());
  EXPECT_EQ(r.As<AcDb2dPolyline>(0x34)->numVerts(), 2u);
  EXPECT_STREQ(r.As<AcDbText>(0x38)->textStringConst(), L"客厅 ²");
  EXPECT_STREQ(r.As<AcDbMText>(0x39)->contents(), L"one\\Ptwo");
  EXPECT_EQ(r.As<AcDbDimension>(0x3F)->measurement(), 10);
  EXPECT_EQ(r.As<AcDbViewport>(0x3E)->number(), 2);
}

TEST(DxfRead, EntitiesBelongToTheSpaceThatTheyName) {
  Read r(SmallDrawing());
  EXPECT_EQ(r.InSpace(ACDB_MODEL_SPACE), 10u);
  EXPECT_EQ(r.InSpace(ACDB_PAPER_SPACE), 1u);
}

TEST(DxfRead, AReferenceHasItsBlockAndItsAttributes) {
  Read r(SmallDrawing());
  auto* reference = r.As<AcDbBlockReference>(0x3A);
  ASSERT_NE(reference, nullptr);
  EXPECT_EQ(reference->blockTableRecord().handle().value(), 0x1Cu);
  ASSERT_EQ(reference->attributes().size(), 1u);
  EXPECT_STREQ(AcDbAttribute::cast(reference->attributes()[0].object())->textStringConst(), L"M1");
  auto* block = AcDbBlockTableRecord::cast(reference->blockTableRecord().object());
  EXPECT_EQ(block->origin().y, 2);
  EXPECT_EQ(block->entities().size(), 2u);
}

TEST(DxfRead, ExtendedDataIsSeparatedByApplication) {
  Read r(SmallDrawing());
  resbuf* data = r.At(0x30)->xData(L"_QVX");
  ASSERT_NE(data, nullptr);
  EXPECT_STREQ(data->rbnext->resval.rstring, L"墙");
  const resbuf* point = data->rbnext->rbnext->rbnext->rbnext;
  EXPECT_EQ(point->restype, 1010);
  EXPECT_EQ(point->resval.rpoint[2], 3);
  EXPECT_EQ(point->rbnext->rbnext->resval.rlong, 70000);
  acutRelRb(data);
  data = r.At(0x30)->xData(L"OTHER");
  ASSERT_NE(data, nullptr);
  EXPECT_EQ(data->rbnext->resval.rint, 1);
  acutRelRb(data);
  data = r.At(0x1B)->xData(L"_QVX");  // of a block record
  ASSERT_NE(data, nullptr);
  EXPECT_EQ(data->rbnext->resval.rreal, 50);
  acutRelRb(data);
}

TEST(DxfRead, AnUnknownClassIsKeptWithItsGroups) {
  Read r(SmallDrawing());
  auto* thing = r.As<AcDbProxyEntity>(0x3D);
  ASSERT_NE(thing, nullptr);
  EXPECT_STREQ(thing->originalDxfName(), L"THING");
  EXPECT_STREQ(thing->layer(), L"墙线");
  EXPECT_EQ(thing->colorIndex(), 256);  // group 62 belongs to the class
  ASSERT_EQ(thing->groups().size(), 7u);
  EXPECT_EQ(thing->groups()[1].text, L"1.50");
  EXPECT_EQ(thing->groups()[3].text, L" 7");
  EXPECT_EQ(thing->groups()[6].text, L"a\nb");
  EXPECT_FALSE(thing->subWorldDraw(nullptr));
}

TEST(DxfRead, LayersKeepColourLinetypeAndState) {
  Read r(SmallDrawing());
  auto* layer = r.As<AcDbLayerTableRecord>(0x11);
  ASSERT_NE(layer, nullptr);
  EXPECT_STREQ(layer->getName(), L"墙线");
  EXPECT_EQ(layer->colorIndex(), 3);
  EXPECT_TRUE(layer->isLocked());
  EXPECT_EQ(r.As<AcDbLayerTableRecord>(0x10)->colorIndex(), 7);
}

TEST(DxfRead, LayersOfTheOldestReleaseHaveTheirColour) {
  Read r(Lines({"0", "SECTION", "2",     "TABLES", "0", "TABLE",  "2", "LAYER", "70",
                "1", "0",       "LAYER", "2",      "A", "70",     "0", "62",    "5",
                "6", "HIDDEN",  "0",     "ENDTAB", "0", "ENDSEC", "0", "EOF"}));
  AcDbObjectId id;
  ASSERT_EQ(AcDbLayerTable::cast(r.database.layerTableId().object())->getAt(L"a", id), Acad::eOk);
  EXPECT_EQ(AcDbLayerTableRecord::cast(id.object())->colorIndex(), 5);
  EXPECT_STREQ(AcDbLayerTableRecord::cast(id.object())->linetype(), L"HIDDEN");
}

TEST(DxfRead, ANewerFileIsUnicodeForAnyCodePage) {
  Read r(Lines({"0",  "SECTION",
                "2",  "HEADER",
                "9",  "$DWGCODEPAGE",
                "3",  "ANSI_936",
                "9",  "$ACADVER",
                "1",  "AC1021",
                "0",  "ENDSEC",
                "0",  "SECTION",
                "2",  "ENTITIES",
                "0",  "TEXT",
                "5",  "40",
                "8",  "0",
                "10", "0",
                "20", "0",
                "40", "1",
                "1",  "\xE5\xA2\x99",
                "0",  "ENDSEC",
                "0",  "EOF"}));
  EXPECT_STREQ(r.As<AcDbText>(0x40)->textStringConst(), L"墙");
}

TEST(DxfRead, AModulesClassIsFoundByItsName) {
  class Column : public AcDbEntity {
   public:
    Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override {
      resbuf item{};
      while (filer->readItem(&item) == Acad::eOk)
        if (item.restype == 40) size = item.resval.rreal;
      return size < 0 ? Acad::eInvalidInput : Acad::eOk;
    }
    double size = 0;
  };
  TheHost();
  auto* cls = new AcRxClass(
      L"TestColumn", AcDbEntity::desc(), +[]() -> AcRxObject* { return new Column; },
      L"TEST_COLUMN");
  {
    Read r(
        Entities(Lines({"0",   "TEST_COLUMN", "5",  "40",    "100", "AcDbEntity",  "8",  "0",
                        "100", "TestColumn",  "40", "600.0", "0",   "TEST_COLUMN", "5",  "41",
                        "100", "AcDbEntity",  "8",  "0",     "100", "TestColumn",  "40", "-1.0"})));
    ASSERT_NE(r.At(0x40), nullptr);
    EXPECT_EQ(static_cast<Column*>(r.At(0x40))->size, 600);
    EXPECT_NE(r.As<AcDbProxyEntity>(0x41), nullptr);  // rejected by its class
  }
  deleteAcRxClass(cls);
  Read r(Entities(Lines({"0", "TEST_COLUMN", "5", "40", "8", "0"})));
  EXPECT_NE(r.As<AcDbProxyEntity>(0x40), nullptr);  // the module and its class are unloaded
}

TEST(DxfRead, DuplicateAndInvalidHandlesAreReplaced) {
  Read r(Entities(Lines({"0", "LINE", "5", "40",  "8", "0", "10", "1",    "20", "1",
                         "0", "LINE", "5", "40",  "8", "0", "10", "2",    "20", "2",
                         "0", "LINE", "5", "xyz", "8", "0", "0",  "LINE", "5",  "FFFFFFFFFFFFFFFF",
                         "8", "0"})));
  EXPECT_EQ(r.InSpace(ACDB_MODEL_SPACE), 4u);
  EXPECT_EQ(r.As<AcDbLine>(0x40)->startPoint().x, 1);
  EXPECT_EQ(r.report.message, L"");
}

TEST(DxfRead, AnInvalidNumberDropsItsEntityAndIsReported) {
  Read r(Entities(Lines({"0", "CIRCLE", "5", "40", "8", "0", "10", "1", "20", "1", "40", "big",
                         "0", "CIRCLE", "5", "41", "8", "0", "10", "1", "20", "1", "40", "2"})));
  EXPECT_EQ(r.At(0x40), nullptr);
  EXPECT_NE(r.At(0x41), nullptr);
  EXPECT_EQ(r.report.message, L"t.dxf(16): 应为数值，该图元未读入");
}

TEST(DxfRead, ATruncatedFileKeepsCompleteEntities) {
  const std::string good = SmallDrawing();
  const std::size_t at = good.find("CIRCLE\n5\n31");
  Read r(good.substr(0, at + 40));
  EXPECT_NE(r.At(0x30), nullptr);
  EXPECT_EQ(r.At(0x31), nullptr);
  EXPECT_TRUE(r.report.readAnything);
  EXPECT_NE(r.report.message.find(L"t.dxf("), std::wstring::npos);
}

TEST(DxfRead, AnInvalidCodeEndsReadingAndKeepsEarlierEntities) {
  std::string text = SmallDrawing();
  text.replace(text.find("\n0\nARC\n") + 1, 1, "oops");
  Read r(text);
  EXPECT_NE(r.At(0x30), nullptr);
  EXPECT_EQ(r.At(0x32), nullptr);
  EXPECT_NE(r.report.message.find(L"组码不是整数"), std::wstring::npos);
}

TEST(DxfRead, OtherFilesAreReported) {
  for (const std::string& text :
       {std::string(), std::string("hello\nworld\n"), std::string("0\nEOF\n"),
        std::string(1000, '\0'), std::string("1\n2\n3\n4\n")}) {
    const Read r(text);
    EXPECT_FALSE(r.report.readAnything);
    EXPECT_EQ(r.report.message, L"t.dxf(1): 这不是图形交换文件");
  }
  const Read binary("AutoCAD Binary DXF\r\n\x1a");
  EXPECT_FALSE(binary.report.readAnything);
  EXPECT_NE(binary.report.message.find(L"二进制"), std::wstring::npos);
}

TEST(DxfRead, InvalidEntityNamesAreSkipped) {
  Read r(Entities(Lines({"0", "ENDBLK", "5", "40", "8",  "0", "0",    "A B", "5",  "41", "8",
                         "0", "0",      "",  "5",  "42", "0", "LINE", "5",   "43", "8",  "0"})));
  EXPECT_EQ(r.InSpace(ACDB_MODEL_SPACE), 1u);
  EXPECT_EQ(r.report.message, L"t.dxf(5): 此处不应有这样的对象，已跳过 (另有 2 处问题)");
}

TEST(DxfRead, SeveralProblemsAreReportedInOneLine) {
  const Read r(Entities(
      Lines({"0", "CIRCLE", "40", "x", "0", "CIRCLE", "40", "y", "0", "VERTEX", "8", "0"})));
  EXPECT_EQ(r.report.message, L"t.dxf(8): 应为数值，该图元未读入 (另有 2 处问题)");
}

TEST(DxfRead, OfTwoBlocksWithOneNameTheFirstIsUsed) {
  const std::string block = Lines({"0", "BLOCK", "8", "0", "2", "B", "10", "0", "20", "0", "0",
                                   "LINE", "8", "0", "0", "ENDBLK", "8", "0"});
  Read r(Lines({"0", "SECTION", "2", "BLOCKS"}) + block + block +
         Lines({"0", "ENDSEC", "0", "EOF"}));
  EXPECT_EQ(r.InSpace(L"b"), 1u);
  EXPECT_NE(r.report.message.find(L"同名的块"), std::wstring::npos);
}

TEST(DxfRead, EveryPrefixIsReadSafelyAndReportedUnlessComplete) {
  const std::string good = SmallDrawing();
  for (std::size_t length = 0; length + 1 < good.size(); ++length) {
    Read r(good.substr(0, length));
    ASSERT_NE(r.report.message, L"") << "cut at " << length;
  }
}

TEST(DxfRead, RandomDamageIsReadSafely) {
  const std::string good = SmallDrawing();
  std::mt19937 random(20240607);
  const std::string_view bits[] = {"\n",
                                   "0",
                                   "-1",
                                   "99999999999",
                                   "\xFF",
                                   "EOF",
                                   "ENDSEC",
                                   "1e308",
                                   "SECTION",
                                   "\r",
                                   std::string_view("\0", 1),
                                   "BLOCK",
                                   "*Model_Space",
                                   "nan",
                                   "100",
                                   "1001"};
  for (int round = 0; round < 3000; ++round) {
    std::string text = good;
    for (int hit = static_cast<int>(random() % 6) + 1; hit > 0; --hit) {
      const std::size_t at = random() % text.size();
      const std::string_view bit = bits[random() % std::size(bits)];
      switch (random() % 4) {
        case 0:
          text[at] = static_cast<char>(random());
          break;
        case 1:
          text.erase(at, random() % 40);
          break;
        case 2:
          text.insert(at, bit);
          break;
        default:
          text.insert(at, text.substr(random() % text.size(), random() % 200));
          break;
      }
    }
    Read r(text);
    BuildScene(r.database, 1);
    std::wstring why;
  }
}

TEST(DxfRead, TwentyThousandEntitiesAreAllRead) {
  std::string many;
  for (int i = 0; i < 20000; ++i)
    many += Lines({"0", "LINE", "8", "0", "10", "1.5", "20", "2.5", "11", "3.5", "21", "4.5"});
  Read r(Entities(many));
  EXPECT_EQ(r.InSpace(ACDB_MODEL_SPACE), 20000u);
}
