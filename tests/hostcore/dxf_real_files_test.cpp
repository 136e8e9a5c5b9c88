// Drawings that other programs wrote. They are stored beside the tree; tests are skipped if they
// are missing.

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

struct RealFile {
  const char* name;
  std::size_t atLeast;     // minimum number of entities in model space
  const wchar_t* message;  // part of the message; null: no message
};

const RealFile kFiles[] = {
    {"ASCII_R12.dxf", 3, nullptr},
    {"Ceco.NET-Architecture-Tm-53.dxf", 100, nullptr},
    {"R12_with_trash_beyond_EOF.dxf", 1, L"结束标记 EOF 之后还有数据"},
    {"attribute.dxf", 1, nullptr},
    {"blocks2.dxf", 1, nullptr},
    {"dimensions.dxf", 2, nullptr},
    {"dxf_unicode.dxf", 0, nullptr},
    {"floorplan.dxf", 500, nullptr},
    {"multi_insert_with_attribs.dxf", 1, nullptr},
    {"recover01.dxf", 1000, L"段之外有数据"},
    {"small_r13.dxf", 16, nullptr},
    {"testModelPaperSpace.dxf", 5, nullptr},
    {"text_in_viewports.dxf", 5, nullptr},
    {"texts-in-block.dxf", 1, nullptr},
    {"viewport_frozen_layers.dxf", 4, nullptr},
};

}  // namespace

class RealDrawings : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    drawings = std::filesystem::path(QVX_SOURCE_DIR) / ".." / "shared" / "dxf";
    if (!std::filesystem::exists(drawings)) GTEST_SKIP() << "the drawings are not at hand";
  }
  std::filesystem::path drawings;
};

TEST_F(RealDrawings, AllOpenAndProblemsAreReportedWithFileAndLine) {
  for (const RealFile& file : kFiles) {
    SCOPED_TRACE(file.name);
    ui.printed.clear();
    Document* document = host.documents.Open((drawings / file.name).wstring());
    ASSERT_NE(document, nullptr);
    AcDbObjectId model;
    AcDbBlockTable::cast(document->database()->blockTableId().object())
        ->getAt(ACDB_MODEL_SPACE, model);
    EXPECT_GE(AcDbBlockTableRecord::cast(model.object())->entities().size(), file.atLeast);
    if (!file.message) {
      EXPECT_EQ(ui.printed, L"");
    } else {
      EXPECT_NE(ui.printed.find(std::filesystem::path(file.name).wstring() + L"("),
                std::wstring::npos);
      EXPECT_NE(ui.printed.find(file.message), std::wstring::npos);
    }
    const bool paper = document->database()->body().paperIsCurrent;
    EXPECT_TRUE(file.atLeast == 0 || paper || ExtentsOf(*document->database()).isValid());
    host.documents.Close(document);
  }
}

TEST_F(RealDrawings, ABinaryDrawingIsRejectedWithAMessage) {
  EXPECT_EQ(host.documents.Open((drawings / "bin_dxf_r2000.dxf").wstring()), nullptr);
  EXPECT_NE(ui.printed.find(L"bin_dxf_r2000.dxf(1): 这是二进制图形交换文件"), std::wstring::npos);
}

TEST_F(RealDrawings, EachIsSavedAndReopenedWithAllEntities) {
  for (const RealFile& file : kFiles) {
    SCOPED_TRACE(file.name);
    AcDbDatabase first, second;
    ReadDrawing((drawings / file.name).wstring(), first);
    std::wstring why;
    const std::wstring out = (folder / "again.dxf").wstring();
    ASSERT_TRUE(WriteDrawing(out, first, &why));
    EXPECT_EQ(ReadDrawing(out, second).message, L"");
    for (const wchar_t* name : {ACDB_MODEL_SPACE, ACDB_PAPER_SPACE}) {
      AcDbObjectId a, b;
      AcDbBlockTable::cast(first.blockTableId().object())->getAt(name, a);
      AcDbBlockTable::cast(second.blockTableId().object())->getAt(name, b);
      EXPECT_EQ(AcDbBlockTableRecord::cast(a.object())->entities().size(),
                AcDbBlockTableRecord::cast(b.object())->entities().size());
    }
    EXPECT_EQ(BuildScene(first, 1).size(), BuildScene(second, 1).size());
  }
}

TEST_F(RealDrawings, TheLargestOpens) {
  AcDbDatabase database;
  ReadDrawing((drawings / "floorplan.dxf").wstring(), database);
  EXPECT_GT(BuildScene(database, 1).size(), 1000u);
}

TEST_F(RealDrawings, TruncatedFilesKeepReadableEntities) {
  std::ifstream file(drawings / "blocks2.dxf", std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  for (std::size_t length = 0; length + 2 < text.size(); length += 97) {
    AcDbDatabase database;
    EXPECT_NE(
        ReadDrawingText(std::string_view(text).substr(0, length), L"cut.dxf", database).message,
        L"");
  }
}
