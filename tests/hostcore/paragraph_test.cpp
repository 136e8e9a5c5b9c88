// Paragraph texts: wrapped by their width when drawn and picked.
#include "devhost/core/base/text_codes.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

class Paragraph : public hosttest::HostTest {
 protected:
  // A text 10 high at 0,0 with its first line below that point.
  AcDbMText& Read(const std::string& contents, double width) {
    Document& document = NewDrawing();
    ReadDrawingText(
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n0\nENDSEC\n0\nSECTION\n2\n"
        "ENTITIES\n0\nMTEXT\n5\nAB\n100\nAcDbEntity\n8\n0\n100\nAcDbMText\n"
        "10\n0\n20\n0\n40\n10\n41\n" +
            std::to_string(width) + "\n71\n1\n1\n" + contents + "\n0\nENDSEC\n0\nEOF\n",
        L"a.dxf", *document.database());
    return *AcDbMText::cast(Entities().at(0));
  }
  std::vector<std::wstring> LinesOf(AcDbMText& text) {
    std::vector<std::wstring> lines;
    for (const Shape& shape : ShapesOf(text, 1)) lines.push_back(shape.text);
    return lines;
  }
  AcDbEntity* At(double x, double y) {
    return EntityAt(*host.documents.Current()->database(), {x, y, 0}, 1);
  }
};
using Lines = std::vector<std::wstring>;

}  // namespace

TEST_F(Paragraph, WrapsAtTheWidth) {
  AcDbMText& text = Read("甲乙丙丁戊", 20);
  EXPECT_EQ((Lines{L"甲乙", L"丙丁", L"戊"}), LinesOf(text));
}

TEST_F(Paragraph, WrapsWordsAtBlanks) {
  AcDbMText& text = Read("door and window", 60);
  EXPECT_EQ((Lines{L"door and", L"window"}), LinesOf(text));
}

TEST_F(Paragraph, AWidthOfZeroNeverWraps) {
  AcDbMText& text = Read("甲乙丙丁戊", 0);
  EXPECT_EQ(Lines{L"甲乙丙丁戊"}, LinesOf(text));
}

TEST_F(Paragraph, IsPickedWhereItsLinesAre) {
  AcDbMText& text = Read("甲乙丙丁戊", 20);
  EXPECT_EQ(&text, At(15, -5));
  EXPECT_EQ(&text, At(5, -10 - 50.0 / 3 - 11));  // the third line
  EXPECT_EQ(nullptr, At(15, -10 - 50.0 / 3 - 11));
  EXPECT_EQ(nullptr, At(40, -5));  // where the text would be without wrapping
}

TEST_F(Paragraph, NewTextIsWrappedToo) {
  AcDbMText& text = Read("甲", 20);
  text.setContents(L"甲乙丙");
  EXPECT_EQ((Lines{L"甲乙", L"丙"}), LinesOf(text));
}

TEST_F(Paragraph, LineFeedsEndLines) {
  EXPECT_EQ((Lines{L"a", L"b", L"", L"c"}), MTextLines(L"a\r\nb\n\nc", 0));
}
