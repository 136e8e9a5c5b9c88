// See tail_menu.h.
#include "screenmenu/tail_menu.h"

#include <cstdlib>

namespace qvx {
namespace {

int FindIcon(const TMenuSystem* system, const wchar_t* name) {
  return system ? system->FindResource(name) : -1;
}

void AppendLine(TMenuBar& bar, const wchar_t* label, const wchar_t* command, int icon = -1) {
  auto* line = new TMenuItem(label, command);
  line->m_nIconIndex = icon;
  bar.Append(line);
}

// A copy has no sub-menu, so a jump is a plain line whose command is "*" and the label. The
// separator is added also when no line was copied.
void AppendJumps(TMenuBar& bar, const TMenuBar* rootBar) {
  for (int i = 0; rootBar && i < rootBar->Length(); ++i) {
    const TMenuItem& header = *rootBar->At(i);
    if (!header.m_pSubMenu) continue;
    auto* jump = new TMenuItem(header);
    jump->m_strCommand = L"*";
    jump->m_strCommand += header.m_strLabel;
    bar.Append(jump);
  }
  AppendLine(bar, L"--", L"");
}

}  // namespace

std::unique_ptr<TMenuBar> BuildTailMenu(const TailMenuParts& parts) {
  auto bar = std::make_unique<TMenuBar>();
  if (parts.withHelp) {
    AppendLine(*bar, kHelpLabel, L"*实时助手", FindIcon(parts.system, L"ID_ItemHelp"));
    AppendLine(*bar, L"--", L"");
  }
  if (!parts.limitHeight) AppendJumps(*bar, parts.rootBar);
  TWCString customize(parts.customize);
  customize += L"\n";
  AppendLine(*bar, L"自 定 义", customize, FindIcon(parts.system, L"ID_Customize"));
  return bar;
}

TailChoice DecideTail(const wchar_t* text, const TScreenMenuBar& bar) {
  if (TWCString(text) == kHelpLabel) return {TailChoice::Kind::kHelp, -1};
  TMenuBar* root = bar.RootBar();
  const TMenuItem* line = root ? root->FindItemByLabel(text) : nullptr;
  const int index = line ? bar.PositionOf(line) : -1;
  if (index < 0) return {TailChoice::Kind::kNothing, -1};
  return {TailChoice::Kind::kToggle, index};
}

int HeaderPopupX(const RECT& button, const RECT& frame) {
  const LONG fromLeft = button.left - frame.left;
  const LONG fromRight = frame.right - button.right;
  return std::abs(fromLeft) > std::abs(fromRight) ? button.left : button.right;
}

}  // namespace qvx
