#include "doctabs/tab_tip.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>

namespace {

constexpr int kTipBottom = 100;  // below any strip

bool IsHighSurrogate(wchar_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

}  // namespace

TabTip TipAt(const TabStrip& strip, int clientX) {
  const int origin = strip.Origin();
  const int tab =
      strip.IsOnArrows(clientX) ? -1 : TipTab(strip.m_offsets.Values(), clientX + origin);
  if (tab < 0) return {-1, {}};
  return {tab,
          {strip.m_offsets.At(tab) - origin, 0, strip.m_offsets.At(tab + 1) - origin, kTipBottom}};
}

wchar_t* MakeTipText(const CString& title) {
  auto* text = static_cast<wchar_t*>(std::malloc(kTipCharacters * sizeof(wchar_t)));
  if (!text) return nullptr;
  int length = std::min(title.GetLength(), kTipCharacters - 1);
  if (length && length < title.GetLength() && IsHighSurrogate(title[length - 1])) --length;
  std::wmemcpy(text, title.GetString(), static_cast<std::size_t>(length));
  text[length] = 0;
  return text;
}
