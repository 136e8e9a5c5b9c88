// What a strip shows, as a list of tabs with their places and colours. Holds only tabs in view, so
// that painting costs the same with a thousand tabs as with ten.
#pragma once

#include <vector>

#include "doctabs/tab_strip.h"

struct TabColours {
  COLORREF text, activeText, activeBack, light, dark;
};

// The colours that are painted unless high contrast is on.
constexpr TabColours kTabColours{0, RGB(30, 30, 255), RGB(250, 230, 230), 0xFAFAFA, 0x323232};

// What high contrast gives instead.
struct SystemColours {
  COLORREF text, selectedText, selectedBack, light, dark;
};
TabColours ChooseColours(const TabColours& own, bool highContrast, const SystemColours& system);

// In strip coordinates: the viewport's origin is -origin.
struct TabPicture {
  int index;
  RECT box;    // frame, and fill of the active tab
  POINT text;  // top left corner of the text
  bool active;
  COLORREF textColour, topLeft, bottomRight;
};
struct StripPicture {
  bool clipped;  // by `clip`, in client coordinates
  RECT clip;
  int origin;
  std::vector<TabPicture> tabs;
};
StripPicture PictureOf(const TabStrip& strip, const RECT& client, const TabColours& colours);
