// A sibling module with a pane derived from the exported base class. Loaded
// by module_panes_test.cpp.
#include <memory>

#include "rxdlinkr.h"
#include "rxregsvc.h"
#include "statusbar/win/cad_status_pane.h"

namespace {

class SiblingPane : public CADStatusPane {
 public:
  SiblingPane() { m_strToolTip = L"sibling"; }
  void OnToggle() override { m_on = !m_on; }
  bool IsOn() override { return m_on; }

 private:
  bool m_on = false;
};

std::unique_ptr<SiblingPane> g_pane;

void AddPane() {
  const SiblingPane first;
  g_pane = std::make_unique<SiblingPane>(first);  // the bar shows the copy
  *g_pane = first;
  g_pane->Init(true);
}

void RemovePane() {
  g_pane->Init(false);
  g_pane.reset();
}

}  // namespace

extern "C" __declspec(dllexport) AcRx::AppRetCode
    acrxEntryPoint(AcRx::AppMsgCode message, void* packet) {
  if (message == AcRx::kInitAppMsg) {
    acrxUnlockApplication(packet);
    AddPane();
  } else if (message == AcRx::kUnloadAppMsg) {
    RemovePane();
  }
  return AcRx::kRetOK;
}
