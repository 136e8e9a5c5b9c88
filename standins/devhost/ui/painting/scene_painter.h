// Paints shapes with GDI: lines, filled areas, rotated texts. Pens and fonts are cached
// for one picture.
#pragma once

#include <map>
#include <tuple>
#include <vector>

#include "devhost/core/view/scene.h"
#include "devhost/core/view/view_transform.h"
#include "devhost/ui/painting/gdi.h"

namespace devhost {

class ScenePainter {
 public:
  ScenePainter(HDC dc, const RECT& client, const ViewTransform& view);

  void Paint(const Shape& shape, bool highlighted);

 private:
  void PaintLine(const Shape& shape, bool highlighted);
  void PaintArea(const Shape& shape, bool highlighted);
  void PaintText(const Shape& shape, bool highlighted);
  bool ToPixels(const Shape& shape);  // sets m_points; false: outside the window
  HPEN PenFor(int color, bool dashed, bool highlighted);
  HFONT FontFor(int pixels, double rotation, double widthFactor);

  HDC m_dc;
  RECT m_client;
  const ViewTransform& m_view;
  LOGFONTW m_face{};
  std::vector<POINT> m_points;
  std::map<std::tuple<int, bool, bool>, Pen> m_pens;
  std::map<std::tuple<int, int, int>, Font> m_fonts;
};

}  // namespace devhost
