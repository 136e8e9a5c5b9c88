#include "statusbar/pane_rules.h"

#include "resources/resource_ids.h"

namespace qvx {

const PaneLook& LookOf(SwitchPane pane) {
  static constexpr PaneLook kFill = {L"启动/关闭 墙柱填充", IDI_PANE_FILL_OFF, IDI_PANE_FILL_ON,
                                     IDR_PANE_OFF, IDR_PANE_ON};
  static constexpr PaneLook kBold = {L"启动/关闭 墙柱加粗", IDI_PANE_BOLD_OFF, IDI_PANE_BOLD_ON,
                                     IDR_PANE_OFF, IDR_PANE_ON};
  static constexpr PaneLook kBase = {L"显示/关闭 墙基线", IDI_PANE_BASE_OFF, IDI_PANE_BASE_ON,
                                     IDR_PANE_OFF_ONLY, IDR_PANE_ON_ONLY};
  static constexpr PaneLook kDynDim = {L"启动/关闭 动态标注", IDI_PANE_DYN_DIM_OFF,
                                       IDI_PANE_DYN_DIM_ON, IDR_PANE_OFF_ONLY, IDR_PANE_ON_ONLY};
  static constexpr PaneLook kGroup = {L"启动/关闭 编组", IDI_PANE_GROUP_OFF, IDI_PANE_GROUP_ON,
                                      IDR_PANE_OFF_ONLY, IDR_PANE_ON_ONLY};
  switch (pane) {
    case SwitchPane::kFill:
      return kFill;
    case SwitchPane::kBoldLine:
      return kBold;
    case SwitchPane::kBaseLine:
      return kBase;
    case SwitchPane::kDynDim:
      return kDynDim;
    case SwitchPane::kMakeGroup:
      break;
  }
  return kGroup;
}

int IconOf(SwitchPane pane, bool on) {
  const PaneLook& look = LookOf(pane);
  return on ? look.onIcon : look.offIcon;
}

MenuAct ActOf(unsigned command) {
  if (command == ID_PANE_OPEN || command == ID_PANE_CLOSE) return MenuAct::kToggle;
  return command == ID_PANE_SETTINGS ? MenuAct::kSettings : MenuAct::kNone;
}

namespace {
constexpr int PickStyle(bool high, bool grouping) { return (high ? 2 : 0) + (grouping ? 1 : 0); }
}  // namespace

int PickStyleAfterClick(std::optional<int> value, bool grouping) {
  return PickStyle(value && *value > 1, grouping);
}

int PickStyleAtInit(std::optional<int> value, bool grouping) {
  return PickStyle(value && (*value < 0 || *value > 1), grouping);
}

int ChoiceOfFields(int fields) { return fields == 1 ? 0 : fields == 2 ? 1 : 2; }

int FieldsOfChoice(int choice) {
  constexpr int kAllFields = 10;
  return choice == 0 ? 1 : choice == 1 ? 2 : kAllFields;
}

}  // namespace qvx
