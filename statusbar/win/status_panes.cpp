#include "statusbar/win/status_panes.h"

#include "resources/resource_ids.h"
#include "statusbar/pane_icons.h"
#include "statusbar/status_bar_door.h"
#include "statusbar/win/scale_pane.h"
#include "statusbar/win/switch_panes.h"

using qvx::SwitchPane;

namespace {

struct Panes {
  TMakeGroupPane group;
  TBaseLinePane baseLine;
  TaKhsKsj123 fill;
  TBoldLinePane boldLine;
  TDynDimPane dynDim;
  TDynPane dynInput;
  TPScalePane scale;
};

Panes& ThePanes() {
  static Panes panes;
  return panes;
}

TIconPane& IconPaneOf(SwitchPane pane) {
  Panes& panes = ThePanes();
  switch (pane) {
    case SwitchPane::kFill:
      return panes.fill;
    case SwitchPane::kBoldLine:
      return panes.boldLine;
    case SwitchPane::kBaseLine:
      return panes.baseLine;
    case SwitchPane::kDynDim:
      return panes.dynDim;
    case SwitchPane::kMakeGroup:
      break;
  }
  return panes.group;
}

void UpdateBar() {
  if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Update();
}

const char* NameOf(const AcPane* pane) {
  const Panes& panes = ThePanes();
  if (pane == &panes.group) return "TMakeGroupPane";
  if (pane == &panes.baseLine) return "TBaseLinePane";
  if (pane == &panes.fill) return "TaKhsKsj123";
  if (pane == &panes.boldLine) return "TBoldLinePane";
  if (pane == &panes.dynDim) return "TDynDimPane";
  if (pane == &panes.dynInput) return "TDynPane";
  return pane == &panes.scale ? "TPScalePane" : "";
}

int ResourceOf(HICON icon) {
  for (int id = IDI_PANE_GROUP_OFF; icon && id <= IDI_PANE_FILL_ON; ++id)
    if (qvx::PaneIcon(id) == icon) return id;
  return 0;
}

ShownPane Describe(const AcApStatusBar& bar, AcPane* pane) {
  ShownPane shown{NameOf(pane), pane->GetStyle(), ResourceOf(pane->GetIcon()), {}, {}, {}};
  CString text;
  pane->GetToolTipText(text);
  shown.toolTip = text.GetString();
  pane->GetText(text);
  shown.text = text.GetString();
  if (bar.GetRect(pane, shown.rect))
    ::MapWindowPoints(bar.GetWindow(), nullptr, reinterpret_cast<POINT*>(&shown.rect), 2);
  return shown;
}

}  // namespace

CADStatusPane& StatusPaneOf(SwitchPane pane) { return IconPaneOf(pane); }
TDynPane& TheDynInputPane() { return ThePanes().dynInput; }
TPScalePane& TheScalePane() { return ThePanes().scale; }

void InitStatusPane(SwitchPane pane, bool add) { IconPaneOf(pane).Init(add); }
void InitScalePane(bool add) { ThePanes().scale.Init(add); }

void UpdateStatusPanes() {
  constexpr SwitchPane kAll[] = {SwitchPane::kBaseLine, SwitchPane::kFill, SwitchPane::kBoldLine,
                                 SwitchPane::kDynDim, SwitchPane::kMakeGroup};
  for (const SwitchPane pane : kAll) IconPaneOf(pane).Check(false);
  for (const SwitchPane pane : kAll) IconPaneOf(pane).ShowStateIcon();
  UpdateBar();
}

void RefreshDrawingPanes() {
  for (const SwitchPane pane : {SwitchPane::kFill, SwitchPane::kBoldLine, SwitchPane::kBaseLine})
    IconPaneOf(pane).Check(false);
  for (const SwitchPane pane : {SwitchPane::kBaseLine, SwitchPane::kFill, SwitchPane::kBoldLine})
    IconPaneOf(pane).ShowStateIcon();
}

void RefreshScaleText() { ThePanes().scale.RefreshText(); }

std::vector<ShownPane> ShownPanes() {
  std::vector<ShownPane> shown;
  const AcApStatusBar* bar = acedGetApplicationStatusBar();
  for (int i = 0; bar && i < bar->GetPaneCount(); ++i)
    shown.push_back(Describe(*bar, bar->GetPane(i)));
  return shown;
}
