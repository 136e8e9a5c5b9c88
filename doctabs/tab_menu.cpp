#include "doctabs/tab_menu.h"

namespace {

constexpr TabMenuRow kTabRows[] = {
    {kTabClose, L"关闭文档"},
    {kTabExport, L"整图导出"},
    {0, nullptr},
    {kTabSaveAll, L"保存所有文档"},
    {kTabSaveAllQuit, L"保存所有文档退出"},
    {kTabCloseAll, L"关闭所有文档"},
    {0, nullptr},
    {kTabHide, L"隐藏 (Ctrl - 恢复)"},
};
constexpr TabMenuRow kStripRows[] = {
    {kTabSaveAll, L"保存所有文档"},    {kTabSaveAllQuit, L"保存所有文档退出"},
    {kTabCloseAll, L"关闭所有文档"},   {0, nullptr},
    {kTabHide, L"隐藏 (Ctrl - 恢复)"},
};
constexpr int kKeyboardInset = 5;  // from the strip's corner to a menu of the keyboard

void SetMode(TabStrip& strip, TabShowMode mode) {
  strip.m_nShowMode = static_cast<int>(mode);
  strip.RecalcTabs(0, 0);
}

}  // namespace

const wchar_t kTabsHiddenLine[] = L"热键<Ctrl ->显示文档标签\n";

std::span<const TabMenuRow> TabMenuRows() { return kTabRows; }

std::span<const TabMenuRow> StripMenuRows() { return kStripRows; }

bool IsAboutOneDrawing(unsigned id) { return id == kTabClose || id == kTabExport; }

TabMenuPlan PlanTabMenu(const TabStrip& strip, const TabMenuRequest& request) {
  const POINT point = request.screenPoint;
  if (!request.mayActivate) return {TabMenuAnswer::kNone, -1, point};
  const RECT& box = request.screenStrip;
  if (point.x == -1 && point.y == -1)
    return {TabMenuAnswer::kStripMenu, -1, {box.left + kKeyboardInset, box.top + kKeyboardInset}};
  const int x = point.x - box.left;
  const int tab = strip.IsOnArrows(x) ? strip.Count() : strip.HitTest(x);
  if (tab == strip.Count()) return {TabMenuAnswer::kStripMenu, -1, point};
  return {TabMenuAnswer::kTabMenuLater, tab, point};
}

void HideStrip(TabStrip& strip, int& wish) {
  SetMode(strip, TabShowMode::kHidden);
  wish = 0;
}

void ShowStripAlways(TabStrip& strip, int& wish) {
  SetMode(strip, TabShowMode::kAlways);
  wish = 1;
}

void ShowStripAutomatically(TabStrip& strip) { SetMode(strip, TabShowMode::kAutomatic); }

void MoveStripToBottom(TabStripWindow& window) {
  if (!window.Exists() || !window.HasSiblingBelow()) return;
  window.MoveToBottom();
  window.RecalcFrame();
}

void HideTabBar(TabStrip& strip, int hide, int& wish) {
  if (hide)
    HideStrip(strip, wish);
  else
    ShowStripAutomatically(strip);
}
