#include "editor/key_input.h"

#include <algorithm>

#include "editor/filter_host.h"
#include "editor/key_effects.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

bool Holds(KeyCondition condition, FilterHost& host, const MSG& message, bool isAlone) {
  switch (condition) {
    case KeyCondition::kNone:
    case KeyCondition::kCanResize:  // asked by the resize step
    case KeyCondition::kHelpFile:   // asked by the effect, which needs the path
      return true;
    case KeyCondition::kIdle:
      return host.IsIdle();
    case KeyCondition::kTyped:
      return !host.IsCommandLineEmpty();
    case KeyCondition::kNoLisp:
      return !host.IsLispExpression();
    case KeyCondition::kCtrl:
      return host.IsKeyDown(VK_CONTROL);
    case KeyCondition::kNoCtrl:
      return !host.IsKeyDown(VK_CONTROL);
    case KeyCondition::kShift:
      return host.IsKeyDown(VK_SHIFT);
    case KeyCondition::kNoShift:
      return !host.IsKeyDown(VK_SHIFT);
    case KeyCondition::kZoomSetting:
      return g_bZoomKey != 0;
    case KeyCondition::kCurrentView:
      return host.IsCurrentView(message.hwnd);
    case KeyCondition::kAlone:
      return isAlone;
  }
  return false;
}

// True swallows the message.
bool Decide(KeyEvent event, FilterHost& host, const MSG& message, bool isAlone) {
  for (const KeyRow& row : KeyRows()) {
    if (row.event != event || row.key != message.wParam) continue;
    if (row.belowRelease != 0 && g_dHostVersion >= row.belowRelease) continue;
    const bool applies = std::ranges::all_of(row.conditions, [&](KeyCondition condition) {
      return Holds(condition, host, message, isAlone);
    });
    if (!applies) continue;
    const bool tookEffect = CarryOut(row.effect, host, message);
    return row.result == KeyResult::kSwallow || (row.result == KeyResult::kByEffect && tookEffect);
  }
  return false;
}

}  // namespace

bool KeyInput::Down(FilterHost& host, const MSG& message) {
  if (message.wParam == VK_CONTROL)
    m_isCtrlUsed = false;
  else if (host.IsKeyDown(VK_CONTROL))
    m_isCtrlUsed = true;
  return Decide(KeyEvent::kDown, host, message, false);
}

bool KeyInput::Up(FilterHost& host, const MSG& message) {
  const bool isAlone = !m_isCtrlUsed;
  if (message.wParam == VK_CONTROL) m_isCtrlUsed = false;
  return Decide(KeyEvent::kUp, host, message, isAlone);
}

}  // namespace qvx
