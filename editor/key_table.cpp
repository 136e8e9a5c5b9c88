#include "editor/key_table.h"

namespace qvx {
namespace {

using enum KeyEvent;
using enum KeyCondition;
using enum KeyEffect;
using enum KeyResult;

constexpr double kEvery = 0;

// clang-format off
constexpr KeyRow kRows[] = {
    {kResize, VK_ESCAPE, {kCanResize}, kEvery, kEndResize, kPass},
    {kDown, VK_F1, {kHelpFile}, kEvery, kCommandHelp, kByEffect},
    {kDown, VK_RETURN, {kIdle, kTyped}, kEvery, kClearTyped, kPass},
    {kDown, VK_SPACE, {kIdle, kTyped, kNoLisp}, kEvery, kClearTyped, kPass},
    {kDown, VK_ESCAPE, {kIdle}, 15.01, kClearTypedAndSelection, kPass},
    {kDown, VK_ESCAPE, {kIdle}, kEvery, kClearTyped, kPass},
    {kDown, VK_OEM_3, {kIdle, kCtrl}, kEvery, kProjectManager, kSwallow},
    {kDown, VK_OEM_MINUS, {kIdle, kCtrl}, kEvery, kToggleTabBar, kSwallow},
    {kDown, VK_OEM_PLUS, {kIdle, kCtrl}, kEvery, kToggleScreenMenuWithHint, kSwallow},
    {kDown, VK_OEM_3, {kCurrentView, kZoomSetting, kIdle, kNoCtrl, kNoShift}, kEvery, kZoomOut, kByEffect},
    {kDown, VK_TAB, {kCurrentView, kZoomSetting, kIdle, kNoCtrl, kNoShift}, kEvery, kZoomIn, kByEffect},
    {kUp, VK_F12, {kShift}, 16.11, kToggleModelNumber, kSwallow},
    {kUp, VK_F12, {kCtrl}, 16.11, kToggleScreenMenu, kSwallow},
    {kUp, VK_F12, {kNone}, 16.11, kNothing, kSwallow},
    {kUp, VK_SHIFT, {kNone}, kEvery, kInvertShiftToggle, kPass},
    {kUp, VK_CONTROL, {kAlone}, kEvery, kToggleControls, kPass},
};
// clang-format on

}  // namespace

std::span<const KeyRow> KeyRows() { return kRows; }

}  // namespace qvx
