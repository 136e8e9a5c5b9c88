#include "doctabs/tab_access.h"

RECT TabAccessBox(const TabStrip& strip, int index, const SIZE& client) {
  if (!strip.m_names.IsValidIndex(index)) return {};
  const int origin = strip.Origin();
  return {strip.m_offsets.At(index) - origin, 0, strip.m_offsets.At(index + 1) - kTabGap - origin,
          client.cy};
}

long TabAccessStates(const TabStrip& strip, int index, const SIZE& client, bool stripVisible) {
  long states = kAccessTabSelectable;
  if (index == strip.ActiveTab()) states |= kAccessTabSelected;
  if (!stripVisible) return states | kAccessTabInvisible;
  const RECT box = TabAccessBox(strip, index, client);
  const LONG right = strip.m_bScroll ? TabsBox({0, 0, client.cx, client.cy}).right : client.cx;
  if (box.left < 0 || box.left >= right) states |= kAccessTabOffscreen;
  return states;
}

const wchar_t* TabAccessAction(const TabStrip& strip, int index) {
  return index == strip.ActiveTab() ? L"" : L"切换";
}
