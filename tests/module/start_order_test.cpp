// The order in which the real module comes up, as the host's side of the calls saw it, held against
// the list of steps. The diary of load_sequence_test has the steps that cross no seam; a room that
// is built later adds its own line here.
#include "devhost/core/start_trace.h"
#include "devhost/ui/start_watch.h"
#include "tests/module/module_test.h"

namespace {

using List = std::vector<std::string>;

bool Begins(const std::string& text, const char* with) { return text.rfind(with, 0) == 0; }

// The steps of the module itself: what other modules do in their own start is left out, and so are
// host variables and windows but the context window. Calls of one name in a row are one step, told
// with how many there were.
List OwnSteps() {
  List own;
  std::string inside;  // the other module that is starting
  for (const devhost::StartStep& step : devhost::TheStartTrace().Steps()) {
    const bool isOwn = step.detail == "qvx_initstart.arx";
    if (step.name == "kInitAppMsg" && !isOwn) inside = step.detail;
    if (inside.empty() && step.name != "acedGetVar" && step.name != "var" &&
        (step.name != "window made" || Begins(step.detail, "Afx:"))) {
      std::string text = step.name;
      if (!step.detail.empty() && step.name != "window made") text += " " + step.detail;
      if (step.times > 1) text += " x" + std::to_string(step.times);
      own.push_back(text);
    }
    if (step.name == "kInitAppMsg done" && step.detail == inside) inside.clear();
  }
  return own;
}

}  // namespace

TEST_F(Module, ComesUpInTheWrittenOrder) {
  ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);  // a first start
  HostProcess::Get().Write(L"dmload.rx", "qvx_design.arx\r\n");
  HostProcess::Get().Write(L"qvx.ini", "[Product]\nTitle=Test\n");
  HostProcess::Get().Write(L"qvxtips.txt", "one\r\ntwo\r\n");
  SetNumber(L"Settings", L"g_nCustomFlag", 0);
  SetNumber(L"Tips", L"StartUp", 0);
  {
    const devhost::StartWatch watch(L"");
    ASSERT_TRUE(LoadModule());
  }
  EXPECT_EQ(OwnSteps(),
            (List{"kInitAppMsg qvx_initstart.arx", "module qvx_kernal.arx loaded",
                  "unlockApplication", "registerAppMDIAware", "acedFindFile qvxtips.txt",
                  "acedFindFile qvx.qmn x2",  // and its icon library
                  "window made", "addCommand TShowBar x14", "addReactor",
                  "acedFindFile dmload.rx x2",  // and the file that it names
                  "module qvx_design.arx loaded", "acedFindFile qvx.ini",
                  "kInitAppMsg done qvx_initstart.arx"}));
  for (const wchar_t* name : {L"dmload.rx", L"qvx.ini", L"qvxtips.txt"})
    HostProcess::Get().Remove(name);
  ASSERT_TRUE(UnloadModule());  // which keeps the flags
  SetNumber(L"Settings", L"g_nCustomFlag", 2);
  SetNumber(L"Tips", L"StartUp", 1);
  acrxUnloadModule(L"qvx_design.arx");
  ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey);
}
