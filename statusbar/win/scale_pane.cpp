#include "statusbar/win/scale_pane.h"

#include "ground/guard.h"
#include "ground/win/module_resources.h"
#include "resources/resource_ids.h"
#include "statusbar/drawing_scale_change.h"
#include "statusbar/pane_rules.h"
#include "statusbar/win/scale_dialog.h"
#include "statusbar/scale_rules.h"
#include "statusbar/status_bar_door.h"

namespace {
constexpr int kStyleWithMenu = ACSBPS_POPUP;
}

BOOL TPScalePane::GetToolTipText(CString& text) const {
  return qvx::GuardedOr(FALSE, [&] {
    text = L"单击改变当前比例";
    return TRUE;
  });
}

void TPScalePane::OnLButtonDown(UINT, CPoint) {
  qvx::Guarded([this] { ShowScaleMenu(); });
}

void TPScalePane::ShowScaleMenu() {
  CMenu menu;
  {
    const qvx::ModuleResources resources;
    if (!menu.LoadMenu(IDR_SCALE)) return;
  }
  if (!ChooseScale(DisplayPopupPaneMenu(menu))) return;
  if (!qvx::HasFamilySelection()) qvx::WriteHatchScale();
  RefreshText();
}

void TPScalePane::OnRButtonDown(UINT flags, CPoint point) { OnLButtonDown(flags, point); }

bool TPScalePane::ChooseScale(UINT command) {
  if (command == ID_SCALE_OTHER) return ShowScaleDialog();
  const std::optional<double> scale = qvx::ScaleOfCommand(command);
  if (scale) qvx::SetScale(*scale);
  return scale.has_value();
}

void TPScalePane::Init(bool add) {
  AcApStatusBar* bar = acedGetApplicationStatusBar();
  if (!bar) return;
  if (!add) {
    bar->Remove(this, TRUE);
    return;
  }
  bar->Insert(0, this, TRUE);
  SetStyle(kStyleWithMenu);
  RefreshText();
}

void TPScalePane::RefreshText() {
  SetText(qvx::CurrentScaleText());
  if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Update();
}
