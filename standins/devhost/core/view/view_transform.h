// The transform between world and the pixels of one viewport, in client pixels of the view window:
// a direction of view, a centre and a scale. Display y is up, pixel y is down.
#pragma once

#include "gepnt3d.h"
#include "ground/plain_types.h"

namespace devhost {

class ViewTransform {
 public:
  void Place(const RECT& pixels);      // keeps centre and scale; sizes below 1 become 1
  void Resize(int width, int height);  // places it at 0,0
  int Width() const { return m_width; }
  int Height() const { return m_height; }
  RECT Pixels() const { return {m_left, m_top, m_left + m_width, m_top + m_height}; }
  POINT Middle() const { return {m_left + m_width / 2, m_top + m_height / 2}; }

  POINT ToPixel(const AcGePoint3d& world) const;            // clamped to 28 bits
  AcGePoint3d ToWorld(POINT pixel) const;                   // on the plane z = 0
  AcGePoint3d Center() const { return OnPlane(m_center); }  // exact, unlike that of Middle()
  double PixelsPerUnit() const { return m_scale; }

  void ZoomAt(POINT pixel, double factor);  // keeps the world point under the pixel
  // Fits the extents into this share of the viewport. Invalid extents are ignored.
  void ZoomTo(const AcDbExtents& extents, double share = 0.95);
  void PanBy(int dx, int dy);  // pixels
  // The middle in display coordinates, and the units from the lower to the upper edge.
  void ShowAt(double x, double y, double height);

  // Turns the direction of view about the world point in the middle, by a drag of these pixels. The
  // plane z = 0 is never seen from its edge or from below.
  void OrbitBy(int dx, int dy);
  void LookDown();  // the plan view, with the same point in the middle
  bool IsPlan() const { return m_plan; }
  // World vectors that point right and up on the screen.
  const AcGeVector3d& Right() const { return m_right; }
  const AcGeVector3d& Up() const { return m_up; }

 private:
  struct Flat {
    double x, y;  // along Right() and Up(), from the world's origin
  };
  Flat ToDisplay(const AcGePoint3d& world) const;
  AcGePoint3d OnPlane(const Flat& at) const;
  void SetDirection(double turn, double tilt);

  Flat m_center{210, 148.5};
  double m_scale = 1.5;
  int m_left = 0, m_top = 0, m_width = 800, m_height = 600;
  double m_turn = 0, m_tilt = 0;  // radians: about z, and from the plan view to the side
  bool m_plan = true;
  AcGeVector3d m_right = AcGeVector3d::kXAxis, m_up = AcGeVector3d::kYAxis;
};

}  // namespace devhost
