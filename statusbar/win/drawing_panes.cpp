// The panes of the current drawing's switches: fill, bold lines, base line. The state is kept in
// the drawing; without a drawing all are off.
#include "afxwin.h"

#include "adslib.h"
#include "ground/host_variables.h"
#include "ground/command_line.h"
#include "ground/product_registry.h"
#include "kernel/drawing_switches.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "kernel/tdbconfig.h"
#include "statusbar/win/switch_panes.h"

namespace {

bool IsSwitchOn(int (TDbConfig::*read)() const) {
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, QvxGeLib::g_pCurrentDb);
  if (!config) return false;
  const bool on = (config->*read)() == 1;
  config->close();
  return on;
}

// The sibling module's options dialog opens at the page given by this value.
void OpenPaneOptions() {
  qvx::ScreenMenuKey().SetValue(L"PaneCallOption", 1);
  QvxExport::PostCommand(L"TOptions\n", 0);
}

}  // namespace

bool TaKhsKsj123::IsOn() { return IsSwitchOn(&TDbConfig::SolidFill); }

void TaKhsKsj123::OnToggle() {
  if (!qvx::DrawingSwitchActs(qvx::CommandActive())) return;
  const bool on = !IsOn();
  ShowIcon(on);
  on ? SolidFillOn() : SolidFillOff();
  acedRedraw(nullptr, 0);
}

void TaKhsKsj123::OnSetting() { OpenPaneOptions(); }

bool TBoldLinePane::IsOn() { return IsSwitchOn(&TDbConfig::BoldLine); }

void TBoldLinePane::OnToggle() {
  if (!qvx::DrawingSwitchActs(qvx::CommandActive())) return;
  const bool on = !IsOn();
  ShowIcon(on);
  on ? BoldLineOn() : TasGhdHsj123();
  acedRedraw(nullptr, 0);
}

void TBoldLinePane::OnSetting() { OpenPaneOptions(); }

bool TBaseLinePane::IsOn() { return IsSwitchOn(&TDbConfig::WallBase); }

void TBaseLinePane::OnToggle() {
  const int active = qvx::CommandActive();
  const qvx::BaseLineClick click = qvx::OnBaseLineClick(IsOn(), active);
  ShowIcon(click.iconOn);
  if (!click.flips) return;
  ToggleWallBase();
  acedRedraw(nullptr, 0);
}
