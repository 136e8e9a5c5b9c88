// The tip of a tab: its frame's whole title. The tip machinery gets a rectangle and a buffer.
#pragma once

#include "doctabs/tab_strip.h"

// Characters of the buffer, with the terminator.
constexpr int kTipCharacters = 256;

struct TabTip {
  int tab;   // -1: no tip
  RECT box;  // in client coordinates
};
TabTip TipAt(const TabStrip& strip, int clientX);

// A buffer for the tip machinery, which frees it with free(); null without memory. A longer title
// is cut, never within a pair of surrogates.
wchar_t* MakeTipText(const CString& title);
