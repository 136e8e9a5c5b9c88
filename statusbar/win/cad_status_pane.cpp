#include "statusbar/win/cad_status_pane.h"

#include "ground/guard.h"
#include "ground/win/module_resources.h"
#include "kernel/qvxexport.h"
#include "resources/resource_ids.h"
#include "statusbar/pane_rules.h"

namespace {
void (*s_refreshMenu)() = nullptr;
}

void SetPaneMenuRefresh(void (*refresh)()) { s_refreshMenu = refresh; }

CADStatusPane::CADStatusPane() = default;
CADStatusPane::CADStatusPane(const CADStatusPane& other) = default;
CADStatusPane& CADStatusPane::operator=(const CADStatusPane& other) = default;
CADStatusPane::~CADStatusPane() = default;

BOOL CADStatusPane::GetToolTipText(CString& text) const {
  return qvx::GuardedOr(FALSE, [&] {
    text = m_strToolTip;
    return TRUE;
  });
}

void CADStatusPane::OnLButtonDown(UINT, CPoint) {
  qvx::Guarded([this] {
    OnToggle();
    Check(true);
    if (m_bRefreshMenu && s_refreshMenu) s_refreshMenu();
  });
}

// A double click counts as a second click: two quick clicks restore the state.
void CADStatusPane::OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }

void CADStatusPane::OnRButtonDown(UINT, CPoint point) {
  qvx::Guarded([&] { ShowStateMenu(IDR_PANE_ON, IDR_PANE_OFF, point); });
}

void CADStatusPane::ShowStateMenu(int onMenu, int offMenu, CPoint point) {
  CMenu menu;
  {
    const qvx::ModuleResources resources;
    if (!menu.LoadMenu(static_cast<UINT>(IsOn() ? onMenu : offMenu))) return;
  }
  switch (qvx::ActOf(DisplayContextMenu(menu, point))) {
    case qvx::MenuAct::kToggle:
      OnToggle();
      Check(true);
      break;
    case qvx::MenuAct::kSettings:
      OnSetting();
      break;
    case qvx::MenuAct::kNone:
      break;
  }
}

void CADStatusPane::OnSetting() {
  qvx::Guarded([] { QvxExport::PostCommand(L"_Options\n", 0); });
}

void CADStatusPane::Check(bool update) {
  qvx::Guarded([&] {
    AcPane::SetStyle(qvx::StyleOf(IsOn()));
    AcApStatusBar* bar = update ? acedGetApplicationStatusBar() : nullptr;
    if (bar) bar->Update();
  });
}

void CADStatusPane::Init(bool add) {
  qvx::Guarded([&] {
    AcApStatusBar* bar = acedGetApplicationStatusBar();
    if (!bar) return;
    if (!add) {
      bar->Remove(this, TRUE);
      return;
    }
    bar->Add(this, TRUE);
    Check(true);
  });
}
