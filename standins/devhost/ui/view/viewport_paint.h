// Painting in viewports: the clipping of each one, grid dots, borders.
#pragma once

#include <vector>

#include "devhost/core/view/viewport_set.h"

namespace devhost {

// Limits painting to a rectangle during its lifetime.
class ClipScope {
 public:
  ClipScope(HDC dc, const RECT& r) : m_dc(dc), m_saved(::SaveDC(dc)) {
    ::IntersectClipRect(dc, r.left, r.top, r.right, r.bottom);
  }
  ~ClipScope() { ::RestoreDC(m_dc, m_saved); }
  ClipScope(const ClipScope&) = delete;
  ClipScope& operator=(const ClipScope&) = delete;

 private:
  HDC m_dc;
  int m_saved;
};

// Calls `paint` with the view of each viewport on the screen, clipped to it.
template <class F>
void ForEachViewport(HDC dc, ViewportSet& viewports, F paint) {
  for (const ViewportOnScreen& viewport : viewports.OnScreen()) {
    ClipScope clip(dc, viewport.pixels);
    paint(static_cast<const ViewTransform&>(*viewports.ViewOf(viewport.number)));
  }
}

void PaintGridDots(HDC dc, const std::vector<POINT>& dots);
// That of the current viewport is thicker; a single viewport has none.
void PaintViewportBorders(HDC dc, const std::vector<ViewportOnScreen>& viewports);

}  // namespace devhost
