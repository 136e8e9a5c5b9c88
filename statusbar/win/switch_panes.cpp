// The panes of the module's own switches, and the common part of all panes with icons. The panes of
// the drawing's switches are in drawing_panes.cpp.
#include "statusbar/win/switch_panes.h"

#include <optional>

#include "aced.h"
#include "adslib.h"
#include "ground/command_line.h"
#include "ground/guard.h"
#include "ground/host_variables.h"
#include "kernel/globals.h"
#include "kernel/tadsprintf.h"
#include "statusbar/win/dyn_input_dialog.h"
#include "statusbar/pane_icons.h"

namespace {

void WritePickStyle(int value) { qvx::SetShortVariable(L"pickstyle", value); }

}  // namespace

void TIconPane::OnRButtonDown(UINT, CPoint point) {
  qvx::Guarded([&] {
    const qvx::PaneLook& look = qvx::LookOf(m_pane);
    ShowStateMenu(look.onMenu, look.offMenu, point);
  });
}

// Deliberate: always the off icon. Until the first refresh, at the next change of drawing, only the
// style shows that a switch is on.
void TIconPane::Init(bool add) {
  CADStatusPane::Init(add);
  if (!add) return;
  ShowIcon(false);
  m_strToolTip = qvx::LookOf(m_pane).toolTip;
}

void TIconPane::ShowIcon(bool on) { SetIcon(qvx::PaneIcon(qvx::IconOf(m_pane, on))); }

bool TDynDimPane::IsOn() { return g_bDynamicCoord == 1; }

void TDynDimPane::OnToggle() {
  const bool on = !IsOn();
  ShowIcon(on);
  g_bDynamicCoord = on ? 1 : 0;
  qvx::PrintOutsideCommand(on ? L"<动态标注开>" : L"<动态标注关>");
}

bool TMakeGroupPane::IsOn() { return g_bMakeGroup == 1; }

void TMakeGroupPane::OnToggle() {
  const bool on = !IsOn();
  g_bMakeGroup = on ? 1 : 0;
  adsout << (on ? L"<编组启动>" : L"<编组关闭>");
  ShowIcon(on);
  WritePickStyle(qvx::PickStyleAfterClick(qvx::ShortVariable(L"pickstyle"), on));
  qvx::PostPromptWhenIdle();
}

// PICKSTYLE is updated when the pane is added and when it is removed.
void TMakeGroupPane::Init(bool add) {
  TIconPane::Init(add);
  if (add && IsOn()) ShowIcon(true);
  WritePickStyle(qvx::PickStyleAtInit(qvx::ShortVariable(L"pickstyle"), IsOn()));
}

bool TDynPane::IsOn() { return QvxGeLib::g_bDynInput == 1; }

void TDynPane::OnToggle() {
  const bool on = !IsOn();
  QvxGeLib::g_bDynInput = on ? 1 : 0;
  qvx::PrintOutsideCommand(on ? L"<动态输入开>" : L"<动态输入关>");
}

void TDynPane::OnSetting() { ShowDynInputDialog(); }

void TDynPane::Init(bool add) {
  if (!qvx::HasDynInputPane(g_dHostVersion)) return;
  CADStatusPane::Init(add);
  if (!add) return;
  SetText(L"DYN");
  m_strToolTip = L"启动/关闭 动态输入";
}
