// Modules: loading, messages to their entry points, unloading.
#include "host_fixture.h"

using namespace devhost;

namespace {

std::vector<std::wstring> g_heard;
bool g_unlock = true;

std::wstring Where() {
  AcApDocument* document = acDocManager->curDocument();
  return document ? L" in " + std::wstring(document->docTitle()) : L"";
}

int Entry(int message, void* packet) {
  g_heard.push_back(std::to_wstring(message) + Where());
  if (message == AcRx::kInitAppMsg) {
    if (g_unlock) acrxUnlockApplication(packet);
    acrxRegisterAppMDIAware(packet);
    auto* stack = static_cast<AcEdCommandStack*>(acrxSysRegistry()->at(ACRX_CMDS));
    stack->addCommand(L"MOD", L"TMOD", L"TMOD", 0, [] {});
  }
  if (message == AcRx::kLoadDwgMsg) acedDefun(L"modfun", 0);
  return AcRx::kRetOK;
}

}  // namespace

class Modules : public hosttest::HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    g_heard.clear();
    g_unlock = true;
    modules.entries[L"good.arx"] = Entry;
    MakeFile("good.arx", "");
    MakeFile("bad.arx", "this is no module");
  }
};

TEST_F(Modules, LoadingSendsAMessageForEveryOpenDrawing) {
  const std::wstring a = NewDrawing().Title(), b = NewDrawing().Title();
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_EQ(g_heard, (std::vector<std::wstring>{L"1 in " + b, L"3 in " + a, L"3 in " + b}));
  EXPECT_EQ(Journal("module"), std::vector<std::string>{"loaded good.arx"});
}

TEST_F(Modules, ALaterDrawingIsAnnouncedBeforeItIsActivated) {
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  const std::wstring name = NewDrawing().Title();
  EXPECT_EQ(g_heard.back(), L"3 in " + name);
  host.documents.Close(host.documents.Current());
  EXPECT_EQ(g_heard.back(), L"4 in " + name);
}

TEST_F(Modules, LoadingTwiceLoadsOnce) {
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_TRUE(acrxLoadModule(L"GOOD.ARX", true));
  EXPECT_EQ(modules.live, 1);
}

TEST_F(Modules, AFileThatIsNotAModuleIsReportedAndUnloaded) {
  EXPECT_FALSE(acrxLoadModule(L"bad.arx", true));
  EXPECT_NE(ui.printed.find(L"bad.arx: 不是模块"), std::wstring::npos);
  EXPECT_FALSE(acrxLoadModule(L"missing.arx", true));
  EXPECT_NE(ui.printed.find(L"找不到模块文件 missing.arx"), std::wstring::npos);
  EXPECT_EQ(acedArxLoaded(), nullptr);
}

TEST_F(Modules, AMissingFileIsNotPrintedUnlessRequested) {
  EXPECT_FALSE(acrxLoadModule(L"missing.arx", false));
  EXPECT_TRUE(ui.printed.empty());
}

TEST_F(Modules, UnloadingRemovesCommandsAndFunctions) {
  Document& drawing = NewDrawing();
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_NE(host.commands.Find(L"TMOD", false), nullptr);
  EXPECT_EQ(drawing.lispFunctions.count(L"MODFUN"), 1u);
  EXPECT_TRUE(acrxUnloadModule(L"good.arx"));
  EXPECT_EQ(g_heard.back().substr(0, 1), L"2");
  EXPECT_EQ(host.commands.Find(L"TMOD", false), nullptr);
  EXPECT_TRUE(drawing.lispFunctions.empty());
  EXPECT_EQ(modules.live, 0);
  EXPECT_TRUE(acrxLoadModule(L"good.arx", true));  // loaded again in the same process
}

TEST_F(Modules, ALockedModuleIsNotUnloaded) {
  g_unlock = false;
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_FALSE(acrxUnloadModule(L"good.arx"));
  EXPECT_EQ(modules.live, 1);
}

TEST_F(Modules, TheNamesOfLoadedModulesAreListed) {
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  resbuf* names = acedArxLoaded();
  ASSERT_NE(names, nullptr);
  EXPECT_STREQ(names->resval.rstring, L"good.arx");
  EXPECT_EQ(names->rbnext, nullptr);
  acutRelRb(names);
}

TEST_F(Modules, TheLinkerIsFoundByItsPublishedName) {
  AcRxObject* found = acrxSysRegistry()->at(L"DynamicLinker");
  ASSERT_NE(found, nullptr);
  EXPECT_TRUE(found->isA()->isDerivedFrom(AcRxDynamicLinker::desc()));
  EXPECT_FALSE(found->isA()->isDerivedFrom(AcEdCommandStack::desc()));
}

TEST_F(Modules, FilesAreFoundAlongTheSupportPath) {
  ACHAR path[260];
  EXPECT_EQ(acedFindFile(L"good.arx", path), RTNORM);
  EXPECT_EQ(std::wstring(path), (folder / "good.arx").wstring());
  EXPECT_EQ(acedFindFile(L"nowhere.txt", path), RTERROR);
}

TEST_F(Modules, AModulesCommandHidesTheHostsAndADotSelectsTheHosts) {
  static int ran;
  ran = 0;
  modules.entries[L"line.arx"] = [](int message, void* packet) -> int {
    if (message == AcRx::kInitAppMsg) {
      acrxUnlockApplication(packet);
      auto* stack = static_cast<AcEdCommandStack*>(acrxSysRegistry()->at(ACRX_CMDS));
      stack->addCommand(L"OWN", L"LINE", L"LINE", 0, [] { ++ran; });
    }
    return AcRx::kRetOK;
  };
  MakeFile("line.arx", "");
  NewDrawing();
  ASSERT_TRUE(acrxLoadModule(L"line.arx", true));
  Send(L"_line\n");
  EXPECT_EQ(ran, 1);
  Send(L"_.line 0,0 1,1 \n");
  EXPECT_EQ(Entities().size(), 1u);
  EXPECT_EQ(ran, 1);
}

namespace {

// An entity class of a module: a column with a size, drawn as a cross.
class Column : public AcDbEntity {
 public:
  AcRxClass* isA() const override { return cls; }
  bool subWorldDraw(AcGiWorldDraw* draw) const override {
    const AcGePoint3d ends[2] = {{-size, 0, 0}, {size, 0, 0}};
    return draw->geometry().polyline(2, ends);
  }
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override {
    resbuf item{};
    while (filer->readItem(&item) == Acad::eOk) {
      if (item.restype == 40) size = item.resval.rreal;
      if (item.restype == 62) kind = item.resval.rint;
      if (item.restype == 1) label = item.resval.rstring;
    }
    return Acad::eOk;
  }
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override {
    AcDbEntity::dxfOutFields(filer);
    filer->writeString(100, L"TestColumn");
    filer->writeDouble(40, size);
    filer->writeInt(62, kind);
    return filer->writeString(1, label.c_str());
  }
  double size = 0;
  int kind = 0;
  std::wstring label;
  static AcRxClass* cls;
};
AcRxClass* Column::cls = nullptr;

}  // namespace

TEST_F(Modules, EntitiesChangeToAndFromTheirClassWithoutLosingData) {
  MakeFile(
      "columns.dxf",
      "0\nSECTION\n2\nENTITIES\n0\nTEST_COLUMN\n5\n40\n100\nAcDbEntity\n8\nZ1\n62\n3\n370\n50\n"
      "100\nTestColumn\n40\n600.5\n62\n7\n1\na^Jb "
      "\\U+5899\n1001\n_QVX\n1040\n100.0\n0\nENDSEC\n0\nEOF\n");
  Document* document = host.documents.Open(L"columns.dxf");
  ASSERT_NE(document, nullptr);
  ASSERT_EQ(Entities().size(), 1u);
  EXPECT_NE(AcDbProxyEntity::cast(Entities()[0]), nullptr);
  const auto looks = [&] {
    AcDbEntity* e = Entities().at(0);
    resbuf* data = e->xData(L"_QVX");
    const double scale = data ? data->rbnext->resval.rreal : 0;
    if (data) acutRelRb(data);
    return std::wstring(e->layer()) + L" " + std::to_wstring(e->colorIndex()) + L" " +
           std::to_wstring(e->handle().value()) + L" " + std::to_wstring(static_cast<int>(scale));
  };
  EXPECT_EQ(looks(), L"Z1 3 64 100");
  document->pickFirst = {Entities()[0]->objectId()};
  Column::cls = new AcRxClass(
      L"TestColumn", AcDbEntity::desc(), []() -> AcRxObject* { return new Column; },
      L"TEST_COLUMN");
  acrxBuildClassHierarchy();
  ASSERT_EQ(Entities().at(0)->isA(), Column::cls);
  EXPECT_TRUE(document->pickFirst.empty());  // ids of replaced entities are dropped
  const auto* column = static_cast<const Column*>(Entities()[0]);
  EXPECT_EQ(column->size, 600.5);
  EXPECT_EQ(column->kind, 7);
  EXPECT_EQ(column->label, L"a\nb 墙");
  EXPECT_EQ(looks(), L"Z1 3 64 100");
  deleteAcRxClass(Column::cls);
  const auto* opaque = AcDbProxyEntity::cast(Entities().at(0));
  ASSERT_NE(opaque, nullptr);
  EXPECT_EQ(looks(), L"Z1 3 64 100");
  ASSERT_EQ(opaque->groups().size(), 4u);
  EXPECT_EQ(opaque->groups()[0].text, L"TestColumn");
  EXPECT_EQ(opaque->groups()[3].text, L"a\nb 墙");
  Send(L"QSAVE\n");
  std::ifstream saved(folder / "columns.dxf", std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(saved)), std::istreambuf_iterator<char>());
  EXPECT_NE(text.find("370\n50\n100\nTestColumn\n40\n600.5\n62\n7\n1\na^Jb 墙\n1001\n_QVX\n"),
            std::string::npos);
}
