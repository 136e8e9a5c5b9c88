#include "editor/key_effects.h"

#include "editor/command_help.h"
#include "editor/control_toggle.h"
#include "editor/filter_host.h"
#include "editor/zoom_at_cursor.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr double kZoomIn = 1.6, kZoomOut = 0.625;
constexpr int kLargeSelection = 100;  // from here on clearing takes the host long

const wchar_t* ProjectManagerCommand() {
  switch (g_nProductId) {
    case 5:
    case 9:
    case 12:
      return L"nTBecGcgl";
    case 11:
      return L"TDLGcgl";
    case 4:
      return L"TCEGcgl";
    default:
      return L"TProjectManager";
  }
}

void SendProjectManager(FilterHost& host) {
  TWCString text = host.FullCommandName(ProjectManagerCommand());
  text += L"\n";
  host.SendToHost(text);
}

void ClearSmallSelection(FilterHost& host) {
  TPickEntSet set;
  const int count = host.SelectImplied(nullptr, set);
  if (count >= 0 && count < kLargeSelection) host.ClearSelection();
}

void ToggleTabBar(FilterHost& host) {
  g_bDwgTabBar = !g_bDwgTabBar;
  host.HideTabBar(!g_bDwgTabBar);
  if (!g_bDwgTabBar) host.PrintWithPrompt(L"热键<Ctrl ->显示文档标签");
}

// Returns whether it was visible.
bool ToggleScreenMenu(FilterHost& host) {
  const bool wasVisible = host.IsScreenMenuVisible();
  host.ShowScreenMenu(!wasVisible);
  return wasVisible;
}

bool HelpOnCommand(FilterHost& host) {
  TWCString helpFile;
  return host.FindHelpFile(helpFile) && ShowCommandHelp(host, helpFile);
}

}  // namespace

bool CarryOut(KeyEffect effect, FilterHost& host, const MSG& message) {
  switch (effect) {
    case KeyEffect::kCommandHelp:
      return HelpOnCommand(host);
    case KeyEffect::kZoomIn:
      return ZoomAtCursor(host, message.pt, kZoomIn);
    case KeyEffect::kZoomOut:
      return ZoomAtCursor(host, message.pt, kZoomOut);
    case KeyEffect::kClearTyped:
      host.ClearKeyboardBuffer();
      break;
    case KeyEffect::kClearTypedAndSelection:
      host.ClearKeyboardBuffer();
      ClearSmallSelection(host);
      break;
    case KeyEffect::kProjectManager:
      SendProjectManager(host);
      break;
    case KeyEffect::kToggleTabBar:
      ToggleTabBar(host);
      break;
    case KeyEffect::kToggleScreenMenuWithHint:
      if (ToggleScreenMenu(host)) host.PrintWithPrompt(L"热键<Ctrl +>显示屏幕菜单");
      break;
    case KeyEffect::kToggleScreenMenu:
      ToggleScreenMenu(host);
      break;
    case KeyEffect::kToggleModelNumber:
      host.ToggleModelNumber();
      break;
    case KeyEffect::kInvertShiftToggle:
      g_bShiftToggle = !g_bShiftToggle;
      break;
    case KeyEffect::kToggleControls:
      ToggleControls(host);
      break;
    case KeyEffect::kEndResize:
    case KeyEffect::kNothing:
      break;
  }
  return true;
}

}  // namespace qvx
