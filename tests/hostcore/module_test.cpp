// Modules: loading, what their entry points hear, unloading.
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

TEST_F(Modules, LoadingTellsTheModuleOfEveryOpenDrawing) {
  const std::wstring a = NewDrawing().Title(), b = NewDrawing().Title();
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_EQ(g_heard, (std::vector<std::wstring>{L"1 in " + b, L"3 in " + a, L"3 in " + b}));
  EXPECT_EQ(Journal("module"), std::vector<std::string>{"loaded good.arx"});
}

TEST_F(Modules, ADrawingThatComesLaterIsToldBeforeItIsActivated) {
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

TEST_F(Modules, AFileThatIsNoModuleIsToldAndNothingStays) {
  EXPECT_FALSE(acrxLoadModule(L"bad.arx", true));
  EXPECT_NE(ui.printed.find(L"bad.arx: 不是模块"), std::wstring::npos);
  EXPECT_FALSE(acrxLoadModule(L"missing.arx", true));
  EXPECT_NE(ui.printed.find(L"找不到模块文件 missing.arx"), std::wstring::npos);
  EXPECT_EQ(acedArxLoaded(), nullptr);
}

TEST_F(Modules, AMissingFileIsNotToldWhenNobodyAsksForPrinting) {
  EXPECT_FALSE(acrxLoadModule(L"missing.arx", false));
  EXPECT_TRUE(ui.printed.empty());
}

TEST_F(Modules, UnloadingTakesCommandsAndFunctionsAlong) {
  Document& drawing = NewDrawing();
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_NE(host.commands.Find(L"TMOD", false), nullptr);
  EXPECT_EQ(drawing.lispFunctions.count(L"MODFUN"), 1u);
  EXPECT_TRUE(acrxUnloadModule(L"good.arx"));
  EXPECT_EQ(g_heard.back().substr(0, 1), L"2");
  EXPECT_EQ(host.commands.Find(L"TMOD", false), nullptr);
  EXPECT_TRUE(drawing.lispFunctions.empty());
  EXPECT_EQ(modules.live, 0);
  EXPECT_TRUE(acrxLoadModule(L"good.arx", true));  // and again in one process
}

TEST_F(Modules, ALockedModuleStays) {
  g_unlock = false;
  ASSERT_TRUE(acrxLoadModule(L"good.arx", true));
  EXPECT_FALSE(acrxUnloadModule(L"good.arx"));
  EXPECT_EQ(modules.live, 1);
}

TEST_F(Modules, TheNamesOfLoadedModulesAreAList) {
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

TEST_F(Modules, AModulesCommandHidesTheHostsAndADotFindsThatAgain) {
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
