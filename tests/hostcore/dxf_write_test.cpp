// Writing drawings: everything that was read is written, also unknown groups.
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include <sstream>

#include "host_fixture.h"
#include "small_drawing.h"

using namespace devhost;

class DxfWrite : public hosttest::HostTest {
 protected:
  std::string WrittenText(AcDbDatabase& database) {
    std::wstring why;
    const std::filesystem::path path = folder / "out.dxf";
    EXPECT_TRUE(WriteDrawing(path.wstring(), database, &why)) << Utf8(why);
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  // The names in the application tables of a written drawing, in order.
  static std::vector<std::string> Applications(const std::string& written) {
    std::vector<std::string> names;
    std::istringstream text(written);
    std::string code, value, record;
    while (std::getline(text, code) && std::getline(text, value)) {
      if (code == "0") record = value;
      if (code == "2" && record == "APPID") names.push_back(value);
    }
    return names;
  }
  static int CountOfApplications(const std::string& written) {
    const std::size_t table = written.find("TABLE\n2\nAPPID\n");
    const std::size_t count = written.find("\n70\n", table);
    return table == written.npos ? -1 : std::atoi(written.c_str() + count + 4);
  }
  static AcDbObjectId AddMarked(AcDbDatabase& database, const wchar_t* application) {
    auto* line = new AcDbLine({0, 0, 0}, {1, 0, 0});
    AcDbBlockTableRecord::cast(database.currentSpaceId().object())->appendAcDbEntity(line);
    resbuf* data = acutBuildList(1001, application, 1070, 1, RTNONE);
    EXPECT_EQ(line->setXData(data), Acad::eOk);
    acutRelRb(data);
    return line->objectId();
  }
  // Handle, type, layer and colour of every entity of all blocks, in order.
  static std::vector<std::wstring> Inventory(AcDbDatabase& database) {
    std::vector<std::wstring> lines;
    for (AcDbObjectId id : AcDbBlockTable::cast(database.blockTableId().object())->records()) {
      const auto* block = AcDbBlockTableRecord::cast(id.object());
      for (AcDbObjectId e : block->entities()) {
        const AcDbEntity* entity = AcDbEntity::cast(e.object());
        ACHAR handle[17];
        entity->handle().getIntoAsciiBuffer(handle);
        const auto* proxy = AcDbProxyEntity::cast(entity);
        AcDbExtents extents;
        const bool drawn = entity->getGeomExtents(extents) == Acad::eOk;
        lines.push_back(std::wstring(block->getName()) + L" " + handle + L" " +
                        (proxy ? proxy->originalDxfName() : entity->isA()->name()) + L" " +
                        entity->layer() + L" " + std::to_wstring(entity->colorIndex()) +
                        (drawn ? L" " + std::to_wstring(extents.minPoint().x) + L" " +
                                     std::to_wstring(extents.maxPoint().y)
                               : L""));
      }
    }
    return lines;
  }
};

TEST_F(DxfWrite, AWrittenDrawingReadsBack) {
  AcDbDatabase first, second;
  ASSERT_EQ(ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", first).message, L"");
  const std::string text = WrittenText(first);
  ASSERT_EQ(ReadDrawingText(text, L"b.dxf", second).message, L"");
  EXPECT_EQ(Inventory(second), Inventory(first));
  EXPECT_EQ(Inventory(first).size(), 13u);
}

TEST_F(DxfWrite, OpaqueEntitiesAndUnreadSectionsAreWrittenUnchanged) {
  AcDbDatabase database;
  ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", database);
  const std::string text = WrittenText(database);
  EXPECT_NE(text.find("100\nAcThing\n10\n1.50\n20\n2.50\n70\n 7\n330\n30\n62\n5\n1\na^Jb\n"),
            std::string::npos);
  EXPECT_NE(text.find("102\n{ACAD_REACTORS\n330\n1\n102\n}\n"), std::string::npos);
  EXPECT_NE(text.find("2\nOBJECTS\n0\nDICTIONARY\n5\nC\n100\nAcDbDictionary\n3\nACAD_"
                      "GROUP\n350\nD\n0\nENDSEC\n"),
            std::string::npos);
  EXPECT_NE(text.find("2\nCLASSES\n0\nCLASS\n1\nTHING\n"), std::string::npos);
  EXPECT_NE(text.find("9\n$OWNTHING\n10\n1.0\n20\n2.0\n"), std::string::npos);
  EXPECT_NE(text.find("370\n50\n"), std::string::npos);
}

TEST_F(DxfWrite, ExtendedDataOfAPolylinePrecedesItsVertices) {
  AcDbDatabase database, again;
  ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", database);
  const std::string text = WrittenText(database);
  const std::size_t polyline = text.find("\nPOLYLINE\n5\n34\n");
  const std::size_t data = text.find("1001\n_QVX\n1070\n3\n", polyline),
                    vertex = text.find("\nVERTEX\n", polyline);
  EXPECT_LT(data, vertex);
  ReadDrawingText(text, L"b.dxf", again);
  AcDbObjectId id;
  ASSERT_EQ(again.getAcDbObjectId(id, false, AcDbHandle(0x34)), Acad::eOk);
  resbuf* chain = id.object()->xData(L"_QVX");
  ASSERT_NE(chain, nullptr);
  acutRelRb(chain);
}

TEST_F(DxfWrite, HandlesAreUnique) {
  AcDbDatabase database;
  ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", database);
  std::map<std::string, int> handles;
  std::istringstream text(WrittenText(database));
  std::string code, value;
  bool header = false;
  while (std::getline(text, code) && std::getline(text, value)) {
    if (code == "2" && value == "HEADER") header = true;
    if (code == "0" && value == "ENDSEC") header = false;
    if (code == "5" && !header) ++handles[value];
  }
  for (const auto& [handle, count] : handles) EXPECT_EQ(count, 1) << handle;
  EXPECT_GT(handles.size(), 20u);
}

TEST_F(DxfWrite, ErasedEntitiesAreNotWritten) {
  AcDbDatabase database, again;
  ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", database);
  AcDbObjectId id;
  database.getAcDbObjectId(id, false, AcDbHandle(0x31));
  id.object()->erase();
  ReadDrawingText(WrittenText(database), L"b.dxf", again);
  EXPECT_NE(again.getAcDbObjectId(id, false, AcDbHandle(0x31)), Acad::eOk);
}

TEST_F(DxfWrite, ANewDrawingHasTheTablesThatOtherProgramsRequire) {
  AcDbDatabase database, again;
  AcDbBlockTableRecord::cast(database.currentSpaceId().object())
      ->appendAcDbEntity(new AcDbText({1, 2, 0}, L"汉字^ 与\n换行^J^2\r\t", 3));
  const std::string text = WrittenText(database);
  for (const char* table : {"LTYPE", "LAYER", "STYLE", "APPID", "BLOCK_RECORD"})
    EXPECT_NE(text.find(std::string("TABLE\n2\n") + table + "\n"), std::string::npos) << table;
  ASSERT_EQ(ReadDrawingText(text, L"b.dxf", again).message, L"");
  const auto* space = AcDbBlockTableRecord::cast(again.currentSpaceId().object());
  ASSERT_EQ(space->entities().size(), 1u);
  EXPECT_STREQ(AcDbText::cast(space->entities()[0].object())->textStringConst(),
               L"汉字^ 与\n换行^J^2\r\t");
}

TEST_F(DxfWrite, EveryApplicationWithExtendedDataIsRegisteredOnce) {
  AcDbDatabase database, again;
  ReadDrawingText(hosttest::SmallDrawing(), L"a.dxf", database);
  const std::string text = WrittenText(database);
  EXPECT_EQ(Applications(text), (std::vector<std::string>{"ACAD", "_QVX", "OTHER"}));
  EXPECT_EQ(CountOfApplications(text), 3);
  ASSERT_EQ(ReadDrawingText(text, L"b.dxf", again).message, L"");
  EXPECT_EQ(Applications(WrittenText(again)), (std::vector<std::string>{"ACAD", "_QVX", "OTHER"}));
}

TEST_F(DxfWrite, AnErasedObjectRegistersNothing) {
  AcDbDatabase database;
  AcDbObjectId id = AddMarked(database, L"GONE");
  AddMarked(database, L"STAYS");
  id.object()->erase();
  EXPECT_EQ(Applications(WrittenText(database)), (std::vector<std::string>{"ACAD", "STAYS"}));
}

TEST_F(DxfWrite, AnExistingApplicationTableGetsOnlyTheNewNames) {
  const std::string file =
      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nAPPID\n5\n9\n70\n2\n"
      "0\nAPPID\n5\n91\n2\nACAD\n70\n0\n0\nAPPID\n5\n92\n2\n_qvx\n70\n4\n"
      "1001\nMADE_BY\n1000\nx\n0\nENDTAB\n0\nTABLE\n2\nUCS\n70\n0\n0\nENDTAB\n"
      "0\nENDSEC\n0\nEOF\n";
  AcDbDatabase database, again;
  ASSERT_EQ(ReadDrawingText(file, L"a.dxf", database).message, L"");
  EXPECT_EQ(Applications(WrittenText(database)),
            (std::vector<std::string>{"ACAD", "_qvx", "MADE_BY"}));
  AddMarked(database, L"_QVX");  // the same application, ignoring case
  AddMarked(database, L"Acad");
  AddMarked(database, L"NEW");
  AddMarked(database, L"new");
  const std::string text = WrittenText(database);
  EXPECT_EQ(Applications(text), (std::vector<std::string>{"ACAD", "_qvx", "NEW", "MADE_BY"}));
  EXPECT_EQ(CountOfApplications(text), 4);
  EXPECT_NE(text.find("2\n_qvx\n70\n4\n1001\nMADE_BY\n"), std::string::npos) << "as it came";
  EXPECT_NE(text.find("TABLE\n2\nUCS\n70\n0\n"), std::string::npos) << "other tables as they came";
  ReadDrawingText(text, L"b.dxf", again);
  EXPECT_EQ(WrittenText(again).find("TABLE\n2\nAPPID\n"),
            WrittenText(again).rfind("TABLE\n2\nAPPID\n"));
  EXPECT_EQ(Applications(WrittenText(again)), Applications(text));
}

TEST_F(DxfWrite, RealsReadBackExactly) {
  AcDbDatabase database, again;
  const double odd = 0.1 + 0.2, huge = 1.2345678901234567e300;
  AcDbBlockTableRecord::cast(database.currentSpaceId().object())
      ->appendAcDbEntity(new AcDbLine({odd, huge, -0.0}, {1e-300, 5, 0}));
  ReadDrawingText(WrittenText(database), L"b.dxf", again);
  const auto* line = AcDbLine::cast(
      AcDbBlockTableRecord::cast(again.currentSpaceId().object())->entities().at(0).object());
  EXPECT_EQ(line->startPoint().x, odd);
  EXPECT_EQ(line->startPoint().y, huge);
  EXPECT_EQ(line->endPoint().x, 1e-300);
}
