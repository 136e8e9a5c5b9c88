// The font of the system's menus. Create it for each use, so that a change of the user's settings
// shows at once.
#pragma once

#include "ground/win/owned_handle.h"

namespace qvx {

// False when the system gives no metrics.
inline bool MenuFontDescription(LOGFONTW& font) {
  // Without the field that later systems appended: every system accepts this size.
  constexpr UINT kMetricsSize = 500;
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = kMetricsSize;
  if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, kMetricsSize, &metrics, 0)) return false;
  font = metrics.lfMenuFont;
  return true;
}

inline OwnedFont MakeMenuFont() {
  LOGFONTW font{};
  return MenuFontDescription(font) ? OwnedFont(::CreateFontIndirectW(&font)) : OwnedFont();
}

}  // namespace qvx
