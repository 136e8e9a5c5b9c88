// The transform between world and pixels: a centre and a scale, world y up, pixel y down.
#pragma once

#include "gepnt3d.h"
#include "ground/plain_types.h"

namespace devhost {

class ViewTransform {
 public:
  void Resize(int width, int height);  // keeps centre and scale; sizes below 1 become 1
  int Width() const { return m_width; }
  int Height() const { return m_height; }

  POINT ToPixel(const AcGePoint3d& world) const;  // clamped to 28 bits
  AcGePoint3d ToWorld(POINT pixel) const;         // z is 0
  double PixelsPerUnit() const { return m_scale; }

  void ZoomAt(POINT pixel, double factor);  // keeps the world point under the pixel
  void ZoomTo(const AcDbExtents& extents);  // with a margin of a twentieth; ignores invalid extents
  void PanBy(int dx, int dy);               // pixels

 private:
  AcGePoint3d m_center{210, 148.5, 0};
  double m_scale = 1.5;
  int m_width = 800, m_height = 600;
};

}  // namespace devhost
