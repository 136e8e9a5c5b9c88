// The commands of the strip and its two menus as tables, and what a right click does.
#pragma once

#include <span>

#include "doctabs/tab_strip.h"

enum TabCommandId : unsigned {
  kTabHide = 32842,
  kTabAlways = 32843,
  kTabAutomatic = 32844,
  kTabToBottom = 32845,
  kTabClose = 32846,
  kTabCloseAll = 32847,
  kTabSaveAll = 32848,
  kTabSaveAllQuit = 32849,
  kTabExport = 32850,
};

// A row of a menu; id 0 is a separator.
struct TabMenuRow {
  unsigned id;
  const wchar_t* text;
};
std::span<const TabMenuRow> TabMenuRows();    // for a tab
std::span<const TabMenuRow> StripMenuRows();  // beside the tabs

// The command is about the drawing whose tab was clicked, not about all.
bool IsAboutOneDrawing(unsigned id);

struct TabMenuRequest {
  bool mayActivate;   // the host lets the user change the active drawing
  POINT screenPoint;  // (-1, -1) from the keyboard
  RECT screenStrip;
};
enum class TabMenuAnswer {
  kNone,
  kTabMenuLater,  // for `tab`, after it has become active
  kStripMenu,
};
struct TabMenuPlan {
  TabMenuAnswer answer;
  int tab;  // only for a tab's menu
  POINT screenPoint;
};
TabMenuPlan PlanTabMenu(const TabStrip& strip, const TabMenuRequest& request);

constexpr int kTabMenuTimer = 2;
constexpr int kTabMenuDelay = 100;  // milliseconds: the activation of the drawing goes first

// The user's wish for document tabs (g_bDwgTabBar), and the strip's mode. Hiding turns the wish
// off, showing always turns it on. Deliberate: showing automatically leaves it, so a user who then
// hides the strip by the hot key has to press it twice.
void HideStrip(TabStrip& strip, int& wish);
void ShowStripAlways(TabStrip& strip, int& wish);
void ShowStripAutomatically(TabStrip& strip);
// Brings the strip below its siblings, if any follows.
void MoveStripToBottom(TabStripWindow& window);

// HideTabBar of the module. Deliberate: 0 makes the strip automatic, also when it was shown always.
void HideTabBar(TabStrip& strip, int hide, int& wish);

// The prompt that names the hot key; without a newline at the end it is that of the hot key.
extern const wchar_t kTabsHiddenLine[];
