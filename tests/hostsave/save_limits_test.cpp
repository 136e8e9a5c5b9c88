// What a save changes on purpose; the list is in the README of the host. And texts that are hard to
// preserve.
#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "drawing_folder.h"

using namespace devhost;

namespace savetest {
namespace {

std::string Resaved(const std::string& text) {
  TheHost();
  AcDbDatabase database;
  EXPECT_TRUE(ReadDrawingText(text, L"t.dxf", database).readAnything);
  return DrawingText(database);
}

std::string WithHeader(const std::string& header, const std::string& entities = {}) {
  return "0\nSECTION\n2\nHEADER\n" + header + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities +
         "0\nENDSEC\n0\nEOF\n";
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// The text after saving and opening, of a drawing that holds it.
std::wstring TextAgain(const std::wstring& value) {
  AcDbDatabase first, second;
  AcDbBlockTableRecord::cast(first.currentSpaceId().object())
      ->appendAcDbEntity(new AcDbText({0, 0, 0}, value.c_str(), 1));
  EXPECT_EQ(ReadDrawingText(DrawingText(first), L"t.dxf", second).message, L"");
  const auto* space = AcDbBlockTableRecord::cast(second.currentSpaceId().object());
  return AcDbText::cast(space->entities().at(0).object())->textStringConst();
}

}  // namespace

TEST(SaveLimits, OldReleasesBecomeThatOf2007AndLaterOnesStay) {
  EXPECT_TRUE(Has(Resaved(WithHeader("9\n$ACADVER\n1\nAC1009\n")), "$ACADVER\n1\nAC1021\n"));
  EXPECT_TRUE(Has(Resaved(WithHeader("9\n$ACADVER\n1\nAC1032\n")), "$ACADVER\n1\nAC1032\n"));
}

TEST(SaveLimits, AHeaderWithoutReleaseGetsOneAsTheTextIsUtf8) {
  const std::string saved = Resaved(WithHeader("9\n$CLAYER\n8\n\xC7\xBD\n"));
  EXPECT_TRUE(Has(saved, "HEADER\n9\n$ACADVER\n1\nAC1021\n9\n$CLAYER\n8\n墙\n"));
  EXPECT_EQ(Resaved(saved), saved);
}

TEST(SaveLimits, TheNextHandleIsAboveAllOthers) {
  const auto next = [](const std::string& saved) {
    return std::strtoul(saved.c_str() + saved.find("$HANDSEED\n5\n") + 12, nullptr, 16);
  };
  const auto seeded = next(Resaved(WithHeader("9\n$HANDSEED\n5\n500\n")));
  EXPECT_GT(seeded, 0x500u);
  EXPECT_LT(seeded, 0x540u);
  EXPECT_GT(
      next(Resaved(WithHeader("9\n$HANDSEED\n5\n3\n", "0\nPOINT\n5\nA00\n8\n0\n10\n1\n20\n1\n"))),
      0xA00u);
}

TEST(SaveLimits, CommentsAreLost) {
  EXPECT_FALSE(Has(Resaved("999\nmade by hand\n" + WithHeader("")), "made by hand"));
}

TEST(SaveLimits, AColourByLayerIsNotWritten) {
  const std::string saved = Resaved(WithHeader(
      "", "0\nPOINT\n5\n30\n100\nAcDbEntity\n8\n0\n62\n256\n100\nAcDbPoint\n10\n1\n20\n1\n"));
  EXPECT_FALSE(Has(saved, "62\n256\n"));
}

TEST(SaveLimits, TheOwnerIsTheObjectThatContainsTheEntity) {
  const std::string saved = Resaved(WithHeader(
      "",
      "0\nPOINT\n5\n30\n330\nABC\n100\nAcDbEntity\n67\n0\n8\n0\n100\nAcDbPoint\n10\n1\n20\n1\n"));
  EXPECT_FALSE(Has(saved, "330\nABC\n"));
  EXPECT_FALSE(Has(saved, "67\n0\n"));
}

TEST(SaveLimits, EntitiesOfTheModelPrecedeThoseOfTheSheet) {
  const auto point = [](const char* handle, const char* paper) {
    return std::string("0\nPOINT\n5\n") + handle + "\n100\nAcDbEntity\n67\n" + paper +
           "\n8\n0\n100\nAcDbPoint\n10\n1\n20\n1\n";
  };
  const std::string saved = Resaved(WithHeader("", point("31", "1") + point("30", "0")));
  EXPECT_LT(saved.find("POINT\n5\n30\n"), saved.find("POINT\n5\n31\n"));
}

TEST(SaveLimits, ListsInBracesPrecedeTheOwner) {
  const std::string saved =
      Resaved(WithHeader("",
                         "0\nPOINT\n5\n30\n330\n1F\n102\n{ACAD_REACTORS\n330\n7\n102\n}\n100\n"
                         "AcDbEntity\n8\n0\n100\nAcDbPoint\n10\n1\n20\n1\n"));
  EXPECT_TRUE(Has(saved, "POINT\n5\n30\n102\n{ACAD_REACTORS\n330\n7\n102\n}\n330\n"));
}

// A module's class reads and writes its own groups: what it ignores is lost, as its interface says.
TEST(SaveLimits, AModulesClassWritesWhatItKeeps) {
  TheHost();
  class Column : public AcDbEntity {
   public:
    Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override {
      AcDbEntity::dxfOutFields(filer);
      return filer->writeString(100, L"TestColumn");
    }
  };
  static AcRxClass* cls = nullptr;
  class Named : public Column {
   public:
    AcRxClass* isA() const override { return cls; }
  };
  cls = new AcRxClass(
      L"TestColumn", AcDbEntity::desc(), +[]() -> AcRxObject* { return new Named; },
      L"TEST_COLUMN");
  const std::string saved =
      Resaved(WithHeader("",
                         "0\nTEST_COLUMN\n5\n30\n100\nAcDbEntity\n8\n0\n370\n25\n100\n"
                         "TestColumn\n40\n7.0\n"));
  EXPECT_TRUE(Has(saved, "370\n25\n100\nTestColumn\n0\n"));
  deleteAcRxClass(cls);
}

TEST(SaveLimits, DamageIsReportedOnce) {
  TheHost();
  AcDbDatabase first, second;
  const std::string text =
      WithHeader("", "0\nCIRCLE\n5\n30\n8\n0\n10\nx\n0\nPOINT\n5\n31\n8\n0\n") + "0\nLINE\n";
  EXPECT_NE(ReadDrawingText(text, L"a.dxf", first).message, L"");
  EXPECT_EQ(ReadDrawingText(DrawingText(first), L"b.dxf", second).message, L"");
}

TEST(SaveTexts, ReadBackAsTheyWere) {
  for (const std::wstring& text :
       {std::wstring(L"^"), std::wstring(L"^J"), std::wstring(L"^ J"), std::wstring(L"^^J^M^I^ "),
        std::wstring(L"a\nb\r\tc^\n"), std::wstring(L"  blanks  "), std::wstring(L"\\U+00B2"),
        std::wstring(L"\\M+5C7BD"), std::wstring(L"\\\\U+0041 \\U+"), std::wstring(L"\xD83D\xDE00"),
        std::wstring(L"\xD83D"), std::wstring(L"\xDE00\xD83D"), std::wstring(L"\xD83Dx"),
        std::wstring(L"\xFEFF墙\xFFFD"), std::wstring(L"%%d \x1A \x0B"), std::wstring(L"\x7F\x85")})
    EXPECT_EQ(TextAgain(text), text);
}

TEST(SaveTexts, CodePagesBecomeUtf8) {
  const std::string saved = Resaved(
      WithHeader("9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\nANSI_1252\n",
                 "0\nTEXT\n5\n30\n100\nAcDbEntity\n8\n\xC4\n100\nAcDbText\n10\n0\n20\n0\n40\n1\n1\n"
                 "\xB0 \\U+0416 \\M+5C7BD\n"));
  EXPECT_TRUE(Has(saved, "8\nÄ\n"));
  EXPECT_TRUE(Has(saved, "1\n° Ж 墙\n"));
  EXPECT_TRUE(Has(saved, "$DWGCODEPAGE\n3\nANSI_1252\n"));
  EXPECT_EQ(Resaved(saved), saved);
}

}  // namespace savetest
