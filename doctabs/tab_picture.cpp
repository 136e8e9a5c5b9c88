#include "doctabs/tab_picture.h"

#include <algorithm>

namespace {

constexpr int kTextTop = 3, kActiveTextTop = 4;

TabPicture PictureOfTab(const TabStrip& strip, int i, LONG height, const TabColours& colours) {
  const LONG left = strip.m_offsets.At(i), right = strip.m_offsets.At(i + 1) - kTabGap;
  const bool active = i == strip.ActiveTab();
  TabPicture tab{i,
                 {left, 0, right, height},
                 {left + kTabTextIndent, kTextTop},
                 active,
                 colours.text,
                 colours.light,
                 colours.dark};
  if (!active) return tab;
  tab.text.y = kActiveTextTop;
  tab.textColour = colours.activeText;
  std::swap(tab.topLeft, tab.bottomRight);  // pressed in
  return tab;
}

}  // namespace

TabColours ChooseColours(const TabColours& own, bool highContrast, const SystemColours& system) {
  if (!highContrast) return own;
  return {system.text, system.selectedText, system.selectedBack, system.light, system.dark};
}

StripPicture PictureOf(const TabStrip& strip, const RECT& client, const TabColours& colours) {
  StripPicture picture{strip.m_bScroll, TabsBox(client), strip.Origin(), {}};
  const LONG right = picture.origin + (picture.clipped ? picture.clip.right : client.right);
  for (int i = std::clamp(strip.m_nFirstTab, 0, strip.Count()); i < strip.Count(); ++i) {
    if (strip.m_offsets.At(i) >= right) break;
    picture.tabs.push_back(PictureOfTab(strip, i, client.bottom - client.top, colours));
  }
  return picture;
}
