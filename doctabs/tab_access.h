// Accessibility data of the strip and its tabs for screen readers. The strip is a list of page
// tabs. Role and state values are those of the published accessibility interface.
#pragma once

#include "doctabs/tab_strip.h"

constexpr long kAccessPageTab = 0x25;
constexpr long kAccessPageTabList = 0x3C;

enum TabAccessState : long {
  kAccessTabSelected = 0x2,
  kAccessTabInvisible = 0x8000,
  kAccessTabOffscreen = 0x10000,
  kAccessTabSelectable = 0x200000,
};

// Of a tab: in client coordinates, the part in front of the gap. Empty for an invalid index.
RECT TabAccessBox(const TabStrip& strip, int index, const SIZE& client);
long TabAccessStates(const TabStrip& strip, int index, const SIZE& client, bool stripVisible);
// The default action as a word for the user; empty for the active tab.
const wchar_t* TabAccessAction(const TabStrip& strip, int index);
