// Dimensions of every kind: reading, writing, moving.
#include <sstream>

#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/view/scene.h"
#include "host_fixture.h"

using namespace devhost;

namespace {

std::string Dimension(int type, const std::string& block, const std::string& own) {
  return "0\nDIMENSION\n5\n50\n8\n0\n2\n" + block + "\n10\n1.0\n20\n2.0\n11\n3.0\n21\n4.0\n70\n" +
         std::to_string(type) + "\n" + own;
}

std::string Drawing(const std::string& entities) {
  return "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\n*D1\n10\n0.0\n20\n0.0\n"
         "0\nLINE\n5\n40\n8\n0\n10\n5.0\n20\n0.0\n11\n9.0\n21\n0.0\n0\nENDBLK\n0\nENDSEC\n"
         "0\nSECTION\n2\nENTITIES\n" +
         entities + "0\nENDSEC\n0\nEOF\n";
}

}  // namespace

class Dimensions : public hosttest::HostTest {
 protected:
  AcDbDimension* Open(const std::string& entities) {
    if (!host.documents.Open(MakeFile("d.dxf", Drawing(entities)))) return nullptr;
    return AcDbDimension::cast(Entities().at(0));
  }
  std::string Written() {
    std::wstring why;
    const std::filesystem::path path = folder / "out.dxf";
    EXPECT_TRUE(WriteDrawing(path.wstring(), *host.documents.Current()->database(), &why));
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
};

TEST_F(Dimensions, EveryKindKeepsItsGroupsUnderItsMark) {
  struct Case {
    int type;
    bool angular;
    const char* mark;
    const char* own;
  };
  const Case cases[] = {
      {32, false, "AcDbAlignedDimension", "13\n1.5\n23\n0.0\n33\n0.0\n14\n2.5\n"},
      {33, false, "AcDbAlignedDimension", "13\n1.5\n23\n0.0\n33\n0.0\n14\n2.5\n"},
      {34, true, "AcDb2LineAngularDimension",
       "15\n3.5\n25\n0.0\n35\n0.0\n16\n4.5\n26\n0.5\n36\n0.0\n"},
      {35, false, "AcDbDiametricDimension", "15\n3.5\n25\n0.0\n35\n0.0\n40\n7.5\n"},
      {36, false, "AcDbRadialDimension", "15\n3.5\n25\n0.0\n35\n0.0\n40\n7.5\n"},
      {37, true, "AcDb3PointAngularDimension", "14\n2.5\n24\n0.0\n34\n0.0\n15\n3.5\n"},
      {38, false, "AcDbOrdinateDimension", "13\n1.5\n23\n0.0\n33\n0.0\n14\n2.5\n"},
  };
  for (const Case& c : cases) {
    const AcDbDimension* dimension = Open(Dimension(c.type, "*D1", c.own));
    ASSERT_NE(dimension, nullptr) << c.type;
    EXPECT_EQ(dimension->isAngular(), c.angular) << c.type;
    const std::string written = Written();
    const std::size_t at = written.find(std::string("100\n") + c.mark + "\n");
    ASSERT_NE(at, std::string::npos) << c.type;
    EXPECT_NE(written.find(c.own, at), std::string::npos) << c.type << written.substr(at, 200);
    host.documents.Close(host.documents.Current());
  }
}

TEST_F(Dimensions, MovingMovesTheBlockAndUndoRestoresIt) {
  AcDbDimension* dimension = Open(Dimension(34, "*D1", "13\n1.5\n23\n0.5\n"));
  ASSERT_NE(dimension, nullptr);
  Send(L"MOVE ALL \n0,0 10,20\n");
  AcDbExtents extents;
  ASSERT_EQ(dimension->getGeomExtents(extents), Acad::eOk);
  EXPECT_EQ(extents.minPoint().x, 15);
  EXPECT_EQ(extents.maxPoint().y, 20);
  const std::string written = Written();
  EXPECT_NE(written.find("12\n10.0\n22\n20.0\n"), std::string::npos);
  EXPECT_NE(written.find("13\n11.5\n23\n20.5\n"), std::string::npos);
  Send(L"U\n");
  ASSERT_EQ(dimension->getGeomExtents(extents), Acad::eOk);
  EXPECT_EQ(extents.minPoint().x, 5);
  EXPECT_EQ(Written().find("\n12\n"), std::string::npos);
}

TEST_F(Dimensions, RotatingIsRejected) {
  AcDbDimension* dimension = Open(Dimension(34, "*D1", ""));
  ASSERT_NE(dimension, nullptr);
  EXPECT_EQ(dimension->transformBy(AcGeMatrix3d::insertion({}, 1, 1, 1, {})),
            Acad::eNotImplementedYet);
}
