// A changed object keeps the groups of its file that the host does not know, and the digits of
// numbers that did not change.
#include <sstream>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/dxf/kept_groups.h"
#include "devhost/core/host/host.h"
#include "drawing_folder.h"

using namespace devhost;

namespace savetest {
namespace {

// "0 LINE 5 30" as lines of a file. Values have no blanks.
std::string Lines(const std::string& words) {
  std::istringstream in(words);
  std::string word, out;
  while (in >> word) out += (word == "''" ? "" : word) + "\n";
  return out;
}

std::string Entities(const std::string& words) {
  return Lines("0 SECTION 2 ENTITIES " + words + " 0 ENDSEC 0 EOF");
}

}  // namespace

class ChangedObjects : public ::testing::Test {
 protected:
  void Read(const std::string& text) {
    TheHost();
    EXPECT_EQ(ReadDrawingText(text, L"t.dxf", database).message, L"");
  }
  template <class T>
  T& At(std::uint64_t handle) {
    AcDbObjectId id;
    EXPECT_EQ(database.getAcDbObjectId(id, false, AcDbHandle(handle)), Acad::eOk);
    return *T::cast(id.object());
  }
  // The groups of an object in the saved file, whose text begins with `start`.
  std::string Object(const std::string& start) {
    const std::string text = DrawingText(database);
    std::string object;
    for (const TextGroup& group : SplitGroups(text)) {
      if (group.code == 0 && object.starts_with(Lines(start))) return object;
      if (group.code == 0) object.clear();
      object += group.lines;
    }
    return "missing";
  }
  AcDbDatabase database;
};

TEST_F(ChangedObjects, AnUnchangedObjectKeepsEveryDigit) {
  Read(
      Entities("0 LINE 5 30 330 1F 100 AcDbEntity 8 0 370 50 100 AcDbLine 39 2.50 10 1.10 20 02 11 "
               "1e1 21 0 210 0.0 220 0.0 230 -1.0"));
  EXPECT_TRUE(Object("0 LINE 5 30")
                  .ends_with(Lines("100 AcDbEntity 8 0 370 50 100 AcDbLine 39 2.50 10 1.10 20 02 "
                                   "11 1e1 21 0 210 0.0 220 "
                                   "0.0 230 -1.0")));
}

TEST_F(ChangedObjects, AMovedLineKeepsThicknessAndDirection) {
  Read(
      Entities("0 LINE 5 30 100 AcDbEntity 8 0 100 AcDbLine 39 2.50 10 1.0 20 1.0 11 3.0 21 1.0 "
               "210 0.0 220 0.0 230 -1.0"));
  At<AcDbLine>(0x30).setEndPoint({7, 8, 9});
  EXPECT_TRUE(
      Object("0 LINE 5 30")
          .ends_with(Lines(
              "100 AcDbLine 39 2.50 10 1.0 20 1.0 11 7.0 21 8.0 31 9.0 210 0.0 220 0.0 230 -1.0")));
}

TEST_F(ChangedObjects, AnEditedTextKeepsItsSlantAndTheDigitsOfItsAngle) {
  Read(
      Entities("0 TEXT 5 30 100 AcDbEntity 8 0 100 AcDbText 10 0.0 20 0.0 40 1.0 1 old 50 33.3 51 "
               "15.0 7 ROMAN 100 AcDbText"));
  At<AcDbText>(0x30).setTextString(L"new");
  EXPECT_TRUE(
      Object("0 TEXT 5 30")
          .ends_with(Lines(
              "100 AcDbText 10 0.0 20 0.0 40 1.0 1 new 50 33.3 51 15.0 7 ROMAN 100 AcDbText")));
}

TEST_F(ChangedObjects, AnEmbeddedObjectIsNotReadAsThatOfItsOwner) {
  Read(
      Entities("0 MTEXT 5 30 100 AcDbEntity 8 0 100 AcDbMText 10 1.0 20 2.0 40 5.0 41 9.0 71 1 1 a "
               "101 Embedded 10 77.0 40 66.0 1001 ACAD 1070 1"));
  EXPECT_TRUE(
      Object("0 MTEXT 5 30").ends_with(Lines("1 a 101 Embedded 10 77.0 40 66.0 1001 ACAD 1070 1")));
  At<AcDbMText>(0x30).setContents(L"b");
  EXPECT_TRUE(Object("0 MTEXT 5 30")
                  .ends_with(Lines("10 1.0 20 2.0 40 5.0 41 9.0 71 1 1 b 101 Embedded 10 77.0 40 "
                                   "66.0 1001 ACAD 1070 1")));
}

TEST_F(ChangedObjects, ALongerTextKeepsGroupsThatTheHostDoesNotKnow) {
  Read(Entities(
      "0 MTEXT 5 30 100 AcDbEntity 8 0 100 AcDbMText 10 1.0 20 2.0 40 5.0 41 9.0 46 0.5 71 "
      "1 1 a 73 2 44 1.5"));
  At<AcDbMText>(0x30).setContents(std::wstring(600, L'x').c_str());
  const std::string text = Object("0 MTEXT 5 30");
  for (const char* group : {"46\n0.5\n", "73\n2\n", "44\n1.5\n"})
    EXPECT_NE(text.find(group), text.npos) << text;
  AcDbDatabase again;
  ReadDrawingText(DrawingText(database), L"t.dxf", again);
  AcDbObjectId id;
  ASSERT_EQ(again.getAcDbObjectId(id, false, AcDbHandle(0x30)), Acad::eOk);
  EXPECT_EQ(std::wstring(AcDbMText::cast(id.object())->contents()), std::wstring(600, L'x'));
}

TEST_F(ChangedObjects, AMovedReferenceKeepsItsDirectionAndItsAttributes) {
  Read(Entities(
      "0 INSERT 5 30 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 DOOR 10 1.0 20 1.0 "
      "30 0.0 50 33.3 210 0.0 220 0.0 230 -1.0 0 ATTRIB 5 31 100 AcDbEntity 8 0 100 "
      "AcDbText 10 0.0 20 0.0 40 1.0 1 M 51 5.0 100 AcDbAttribute 280 0 2 NO 70 0 0 SEQEND "
      "5 32 100 AcDbEntity 8 WALL"));
  At<AcDbBlockReference>(0x30).transformBy(AcGeMatrix3d::translation({1, 0, 0}));
  const std::string reference = Object("0 INSERT 5 30");
  EXPECT_TRUE(reference.ends_with(
      Lines("100 AcDbBlockReference 66 1 2 DOOR 10 2.0 20 1.0 30 0.0 50 33.3 210 0.0 220 0.0 230 "
            "-1.0")))
      << reference;
  EXPECT_TRUE(Object("0 ATTRIB 5 31")
                  .ends_with(Lines(
                      "10 1.0 20 0.0 30 0.0 40 1.0 1 M 51 5.0 100 AcDbAttribute 280 0 2 NO 70 0")))
      << Object("0 ATTRIB 5 31");
  EXPECT_EQ(Object("0 SEQEND 5 32"), Lines("0 SEQEND 5 32 330 30 100 AcDbEntity 8 WALL"));
}

TEST_F(ChangedObjects, AReferenceWithoutItsAttributesDoesNotAnnounceThem) {
  Read(
      Entities("0 INSERT 5 30 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 DOOR 10 1.0 20 1.0 "
               "30 0.0 0 ATTRIB 5 31 100 AcDbEntity 8 0 100 AcDbText 10 0.0 20 0.0 40 1.0 1 M 100 "
               "AcDbAttribute 2 NO 70 0 0 SEQEND 5 32 100 AcDbEntity 8 0"));
  At<AcDbAttribute>(0x31).erase();
  EXPECT_EQ(Object("0 INSERT 5 30").find("\n66\n"), std::string::npos);
  EXPECT_EQ(Object("0 SEQEND 5 32"), "missing");
}

TEST_F(ChangedObjects, AMovedPolylineKeepsHandlesAndWidthsOfItsVertices) {
  Read(
      Entities("0 POLYLINE 5 30 100 AcDbEntity 8 W 100 AcDb3dPolyline 66 1 10 0 20 0 30 0 70 8 0 "
               "VERTEX 5 31 100 AcDbEntity 8 W 100 AcDbVertex 100 AcDb3dPolylineVertex 10 1.0 20 "
               "1.0 30 0.0 40 0.25 70 32 0 VERTEX 5 32 100 AcDbEntity 8 W 100 AcDbVertex 10 9.0 20 "
               "9.0 30 0.0 70 16 0 SEQEND 5 33 100 AcDbEntity 8 W"));
  At<AcDb2dPolyline>(0x30).transformBy(AcGeMatrix3d::translation({1, 0, 0}));
  EXPECT_EQ(Object("0 VERTEX 5 31"),
            Lines("0 VERTEX 5 31 330 30 100 AcDbEntity 8 W 100 AcDbVertex 100 AcDb3dPolylineVertex "
                  "10 2.0 20 1.0 30 0.0 40 0.25 70 32"));
  EXPECT_EQ(Object("0 VERTEX 5 32"), Lines("0 VERTEX 5 32 330 30 100 AcDbEntity 8 W 100 AcDbVertex "
                                           "10 9.0 20 9.0 30 0.0 70 16"))
      << "a control point, which the host does not read";
  EXPECT_NE(Object("0 POLYLINE 5 30").find("AcDb3dPolyline\n66\n1\n10\n0\n20\n0\n30\n0\n70\n8\n"),
            std::string::npos);
}

TEST_F(ChangedObjects, ANewVertexIsWrittenBeforeTheEnd) {
  Read(
      Entities("0 LWPOLYLINE 5 30 100 AcDbEntity 8 0 100 AcDbPolyline 90 2 70 0 43 0.5 10 1.0 20 "
               "1.0 91 7 10 2.0 20 2.0 91 8"));
  At<AcDbPolyline>(0x30).addVertexAt(2, {3, 3, 0});
  EXPECT_TRUE(
      Object("0 LWPOLYLINE 5 30")
          .ends_with(
              Lines("100 AcDbPolyline 90 3 70 0 10 1.0 20 1.0 10 2.0 20 2.0 10 3.0 20 3.0 43 0.5")))
      << Object("0 LWPOLYLINE 5 30");
}

TEST_F(ChangedObjects, AChangedLayerKeepsItsLineWeight) {
  Read(Lines(
      "0 SECTION 2 TABLES 0 TABLE 2 LAYER 5 2 330 0 100 AcDbSymbolTable 70 1 0 LAYER 5 11 102 "
      "{ACAD_XDICTIONARY 360 99 102 } 330 2 100 AcDbSymbolTableRecord 100 "
      "AcDbLayerTableRecord 2 WALL 70 0 62 3 420 255 6 Continuous 370 30 390 F 0 ENDTAB 0 "
      "ENDSEC 0 EOF"));
  At<AcDbLayerTableRecord>(0x11).setColorIndex(5);
  EXPECT_EQ(Object("0 LAYER 5 11"),
            Lines("0 LAYER 5 11 102 {ACAD_XDICTIONARY 360 99 102 } 330 2 100 AcDbSymbolTableRecord "
                  "100 AcDbLayerTableRecord 2 WALL 70 0 62 5 420 255 6 Continuous 370 30 390 F"));
}

TEST_F(ChangedObjects, AnObjectWithoutMarksGetsThem) {
  Read(Entities("0 LINE 8 W 39 2.5 10 1.0 20 2.0 11 3.0 21 4.0 1001 ACAD 1070 5"));
  const std::string text = Object("0 LINE");
  EXPECT_NE(
      text.find(Lines("100 AcDbEntity 8 W 100 AcDbLine 39 2.5 10 1.0 20 2.0 11 3.0 21 4.0 1001 "
                      "ACAD 1070 5")),
      text.npos)
      << text;
}

TEST_F(ChangedObjects, AnUnknownObjectWithoutMarksStaysWithoutThem) {
  Read(Entities("0 THING 5 30 8 W 62 3 10 1.0 20 2.0 40 5.0"));
  EXPECT_EQ(Object("0 THING 5 30"), Lines("0 THING 5 30 8 W 62 3 10 1.0 20 2.0 40 5.0"));
  AcDbDatabase again;
  ReadDrawingText(DrawingText(database), L"t.dxf", again);
  AcDbObjectId id;
  ASSERT_EQ(again.getAcDbObjectId(id, false, AcDbHandle(0x30)), Acad::eOk);
  EXPECT_EQ(AcDbProxyEntity::cast(id.object())->groups().size(), 3u);
}

}  // namespace savetest
