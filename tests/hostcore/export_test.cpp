// WBLOCK: the whole drawing under another name.
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/dxf/drawing_file.h"
#include "tests/hostcore/host_fixture.h"

using hosttest::HostTest;

namespace {

class ExportTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    NewDrawing();
    Send(L"LINE 0,0 5,5 \n");
    RunAll();
  }
  std::wstring Path(const wchar_t* name) const { return (folder / name).wstring(); }
};

}  // namespace

TEST_F(ExportTest, TheFileHoldsTheWholeDrawingAndTheDrawingKeepsItsNameAndItsChanges) {
  ASSERT_EQ(Entities().size(), 1u);
  acdbSetDbmod(host.documents.Current()->database(), 5);
  const std::wstring name = host.documents.curDocument()->fileName();
  Send(L"WBLOCK\n" + Path(L"two words.dxf") + L"\n*\n");
  EXPECT_EQ(host.documents.curDocument()->fileName(), name);
  EXPECT_EQ(Var(L"DBMOD"), L"5");
  EXPECT_EQ(host.documents.documentCount(), 1);
  ASSERT_TRUE(host.documents.Open(Path(L"two words.dxf")));
  EXPECT_EQ(Entities().size(), 1u);
}

TEST_F(ExportTest, APathOfMoreThan132CharactersIsTakenWhole) {
  const std::wstring path = Path((std::wstring(150, L'a') + L".dxf").c_str());
  Send(L"WBLOCK\n" + path + L"\n*\n");
  EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(ExportTest, AFileThatCannotBeWrittenGivesALineAndChangesNothing) {
  acdbSetDbmod(host.documents.Current()->database(), 1);
  const std::wstring path = Path(L"no_folder/x.dxf");
  Send(L"WBLOCK\n" + path + L"\n*\n");
  EXPECT_NE(ui.printed.find(path), std::wstring::npos) << "the line names the file";
  EXPECT_EQ(Var(L"DBMOD"), L"1");
  EXPECT_EQ(host.documents.documentCount(), 1);
}

TEST_F(ExportTest, OnlyTheWholeDrawingIsOffered) {
  Send(L"WBLOCK\n" + Path(L"a.dxf") + L"\nDOOR\n");
  EXPECT_FALSE(std::filesystem::exists(Path(L"a.dxf")));
  EXPECT_NE(ui.printed.find(L"只能输出整个图形"), std::wstring::npos);
}

TEST_F(ExportTest, EscapeWritesNothing) {
  Send(L"WBLOCK\n" + Path(L"a.dxf") + L"\n\x1b");
  EXPECT_FALSE(std::filesystem::exists(Path(L"a.dxf")));
}
