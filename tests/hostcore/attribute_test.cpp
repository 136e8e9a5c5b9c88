// Attributes of block references: ATTDEF, BLOCK, EATTEDIT, drawing, picking, files.
#include "acedcmdnf.h"
#include "devhost/core/blocks/block_copy.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class Attributes : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    document = &NewDrawing();
    Send(L"ATTDEF NUMBER\nNumber of the door\nM1\n10,20 5 0\n");
    Send(L"ATTDEF WIDTH\nWidth\n900\n10,10 5 0\n");
    Send(L"LINE 0,0 50,0 \n");
    Send(L"BLOCK DOOR\n0,0 ALL \n");
  }
  AcDbBlockTableRecord& BlockNamed(const wchar_t* name) {
    AcDbObjectId id;
    AcDbBlockTable::cast(document->database()->blockTableId().object())->getAt(name, id);
    return *AcDbBlockTableRecord::cast(id.object());
  }
  AcDbBlockReference& Insert(const AcGePoint3d& at) {
    auto* reference = new AcDbBlockReference(at, BlockNamed(L"DOOR").objectId());
    AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object())
        ->appendAcDbEntity(reference);
    AppendAttributes(*reference);
    return *reference;
  }
  static const AcDbAttribute& At(const AcDbBlockReference& reference, std::size_t i) {
    return *AcDbAttribute::cast(reference.attributes().at(i).object());
  }
  static std::vector<std::wstring> TextsOf(AcDbEntity& entity) {
    std::vector<std::wstring> texts;
    for (const Shape& shape : ShapesOf(entity, 1))
      if (shape.kind == Shape::Kind::Text) texts.push_back(shape.text);
    return texts;
  }

  Document* document = nullptr;
};
using Texts = std::vector<std::wstring>;

}  // namespace

TEST_F(Attributes, ADefinitionKeepsTagPromptAndDefaultValue) {
  EXPECT_TRUE(Entities().empty());  // BLOCK erases what it takes
  const auto parts = LiveEntities(BlockNamed(L"DOOR"));
  ASSERT_EQ(3u, parts.size());
  const auto* definition = AcDbAttributeDefinition::cast(parts[0]);
  ASSERT_TRUE(definition);
  EXPECT_STREQ(L"NUMBER", definition->tagConst());
  EXPECT_STREQ(L"Number of the door", definition->promptConst());
  EXPECT_STREQ(L"M1", definition->textStringConst());
}

TEST_F(Attributes, AReferenceShowsItsValuesAndNotTheTags) {
  EXPECT_EQ((Texts{L"M1", L"900"}), TextsOf(Insert({100, 0, 0})));
}

TEST_F(Attributes, AttributesTakeThePlaceOfTheReference) {
  AcDbBlockReference& reference = Insert({100, 200, 0});
  EXPECT_STREQ(L"NUMBER", At(reference, 0).tagConst());
  EXPECT_DOUBLE_EQ(110, At(reference, 0).position().x);
  EXPECT_DOUBLE_EQ(220, At(reference, 0).position().y);
  EXPECT_EQ(reference.objectId(), At(reference, 0).ownerId());
}

TEST_F(Attributes, InsertCreatesThemWithTheirDefaultValues) {
  Send(L"INSERT DOOR\n100,200 2 90\n");
  ASSERT_EQ(1u, Entities().size());
  const auto& reference = *AcDbBlockReference::cast(Entities()[0]);
  ASSERT_EQ(2u, reference.attributes().size());
  EXPECT_STREQ(L"M1", At(reference, 0).textStringConst());
  EXPECT_NEAR(60, At(reference, 0).position().x, 1e-9);
  EXPECT_NEAR(220, At(reference, 0).position().y, 1e-9);
  EXPECT_NEAR(10, At(reference, 0).height(), 1e-9);
  Send(L"U\n");
  EXPECT_TRUE(Entities().empty());
}

TEST_F(Attributes, AConstantValueIsAPartOfTheBlock) {
  AcDbDatabase& database = *document->database();
  const char text[] =
      "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nTITLE\n70\n2\n10\n0\n20\n0\n0\nATTDEF\n8\n0\n10\n0"
      "\n20\n0\n40\n5\n1\nFIXED\n"
      "3\n\n2\nTAG\n70\n2\n0\nENDBLK\n8\n0\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n2"
      "\nTITLE\n10\n0\n20\n0\n0\nENDSEC\n0\nEOF\n";
  ASSERT_EQ(L"", ReadDrawingText(text, L"a.dxf", database).message);
  auto& reference = *AcDbBlockReference::cast(Entities().at(0));
  AppendAttributes(reference);
  EXPECT_TRUE(reference.attributes().empty());
  EXPECT_EQ(Texts{L"FIXED"}, TextsOf(reference));
}

TEST_F(Attributes, AreReadAsTheyWereWritten) {
  AcDbBlockReference& reference = Insert({100, 200, 0});
  const std::wstring handle = L"" + std::to_wstring(At(reference, 1).handle().value());
  AcDbDatabase read;
  ASSERT_EQ(L"", ReadDrawingText(DrawingText(*document->database()), L"a.dxf", read).message);
  AcDbBlockTable* table = nullptr;
  AcDbObjectId id;
  ASSERT_EQ(Acad::eOk, read.getBlockTable(table, AcDb::kForRead));
  ASSERT_EQ(Acad::eOk, table->getAt(L"DOOR", id));
  table->close();
  const auto parts = LiveEntities(*AcDbBlockTableRecord::cast(id.object()));
  ASSERT_EQ(3u, parts.size());
  const auto* definition = AcDbAttributeDefinition::cast(parts[1]);
  ASSERT_TRUE(definition);
  EXPECT_STREQ(L"WIDTH", definition->tagConst());
  EXPECT_STREQ(L"Width", definition->promptConst());
  const auto* space = AcDbBlockTableRecord::cast(read.currentSpaceId().object());
  const auto* again = AcDbBlockReference::cast(LiveEntities(*space).at(0));
  ASSERT_TRUE(again);
  ASSERT_EQ(2u, again->attributes().size());
  EXPECT_STREQ(L"WIDTH", At(*again, 1).tagConst());
  EXPECT_STREQ(L"900", At(*again, 1).textStringConst());
  EXPECT_EQ(handle, std::to_wstring(At(*again, 1).handle().value()));
}

TEST_F(Attributes, TheLengthOfAFieldIsNoAlignment) {
  AcDbDatabase& database = *document->database();
  const char text[] =
      "0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n66\n1\n2\nDOOR\n10\n0\n20\n0\n"
      "0\nATTRIB\n8\n0\n10\n3\n20\n4\n40\n5\n1\nA\n2\nT\n70\n0\n73\n2\n0\nSEQEND\n"
      "0\nENDSEC\n0\nEOF\n";
  ReadDrawingText(text, L"a.dxf", database);
  const std::vector<Shape> shapes = ShapesOf(*Entities().at(0), 1);
  const auto at = std::find_if(shapes.begin(), shapes.end(),
                               [](const Shape& shape) { return shape.text == L"A"; });
  ASSERT_NE(shapes.end(), at);
  EXPECT_DOUBLE_EQ(3, at->points[0].x);
  EXPECT_DOUBLE_EQ(4, at->points[0].y);
}

TEST_F(Attributes, TheDialogGetsTagPromptAndValueOfThePickedReference) {
  Insert({100, 0, 0});
  std::wstring seen;
  ui.editAttributes = [&](const std::wstring& block, std::vector<AttributeValue>& values) {
    seen = block;
    for (const AttributeValue& value : values)
      seen += L"|" + value.tag + L"," + value.prompt + L"," + value.value;
    return false;
  };
  Send(L"EATTEDIT 125,0\n");
  EXPECT_EQ(L"DOOR|NUMBER,Number of the door,M1|WIDTH,Width,900", seen);
}

TEST_F(Attributes, OkWritesAllValuesInOneStep) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  ui.editAttributes = [](const std::wstring&, std::vector<AttributeValue>& values) {
    values[0].value = L"M7";
    values[1].value = L"";
    return true;
  };
  Send(L"eattedit 125,0\n");
  EXPECT_STREQ(L"M7", At(reference, 0).textStringConst());
  EXPECT_STREQ(L"", At(reference, 1).textStringConst());
  Send(L"U\n");
  EXPECT_STREQ(L"M1", At(reference, 0).textStringConst());
  EXPECT_STREQ(L"900", At(reference, 1).textStringConst());
}

TEST_F(Attributes, ACancelledDialogWritesNothing) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  ui.editAttributes = [](const std::wstring&, std::vector<AttributeValue>& values) {
    values[0].value = L"M7";
    return false;
  };
  const std::size_t steps = document->undo.size();
  Send(L"EATTEDIT 125,0\n");
  EXPECT_STREQ(L"M1", At(reference, 0).textStringConst());
  EXPECT_EQ(steps, document->undo.size());
}

TEST_F(Attributes, ASelectionFromAnotherCommandIsEditedWithoutAPrompt) {
  static AcDbBlockReference* reference;
  reference = &Insert({100, 0, 0});
  ui.editAttributes = [](const std::wstring&, std::vector<AttributeValue>& values) {
    values[0].value = L"M7";
    return true;
  };
  static_cast<AcEdCommandStack&>(host.commands)
      .addCommand(
          L"TEST", L"TOUTER", L"TOUTER", ACRX_CMD_MODAL, +[] {
            ads_name name{}, set{};
            acdbGetAdsName(name, reference->objectId());
            acedSSAdd(name, nullptr, set);
            acedCommandS(RTSTR, L"eattedit", RTPICKS, set, RTNONE);
            acedSSFree(set);
            acedCommandS(RTSTR, L"CIRCLE", RTSTR, L"0,0", RTREAL, 1.0, RTNONE);
          });
  Send(L"TOUTER\n");
  host.commands.removeGroup(L"TEST");
  EXPECT_STREQ(L"M7", At(*reference, 0).textStringConst());
  EXPECT_EQ(std::wstring::npos, ui.printed.find(L"选择块"));
  Send(L"U\n");
  EXPECT_STREQ(L"M1", At(*reference, 0).textStringConst());
  EXPECT_EQ(1u, Entities().size());
}

TEST_F(Attributes, WhatHasNoAttributesOpensNoDialog) {
  Send(L"LINE 0,100 50,100 \n");
  bool opened = false;
  ui.editAttributes = [&](const std::wstring&, std::vector<AttributeValue>&) {
    return opened = true;
  };
  Send(L"EATTEDIT 25,100\n");
  EXPECT_FALSE(opened);
  EXPECT_NE(std::wstring::npos, ui.printed.find(L"选定的对象不是块。"));
}

TEST_F(Attributes, ADrawingThatClosesBehindTheDialogIsLeftAlone) {
  Insert({100, 0, 0});
  ui.editAttributes = [&](const std::wstring&, std::vector<AttributeValue>& values) {
    values[0].value = L"M7";
    document->commands.clear();
    host.documents.Close(document);
    return true;
  };
  Send(L"EATTEDIT 125,0\n");
  EXPECT_EQ(0, host.documents.documentCount());
}

TEST_F(Attributes, AnErasedAttributeIsSkipped) {
  AcDbBlockReference& reference = Insert({100, 0, 0});
  ui.editAttributes = [&](const std::wstring&, std::vector<AttributeValue>& values) {
    reference.attributes()[0].object()->erase();
    values[0].value = L"M7";
    values[1].value = L"800";
    return true;
  };
  Send(L"EATTEDIT 125,0\n");
  EXPECT_STREQ(L"M1", At(reference, 0).textStringConst());
  EXPECT_STREQ(L"800", At(reference, 1).textStringConst());
}
