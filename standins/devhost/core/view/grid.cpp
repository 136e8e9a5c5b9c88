// The dots of the grid; see the header.
#include "devhost/core/view/grid.h"

#include <cmath>

namespace devhost {
namespace {

constexpr double kMostDots = 1e5;

double PixelsOf(const ViewTransform& view, const AcGeVector3d& step) {
  auto along = [&](const AcGeVector3d& axis) {
    return step.x * axis.x + step.y * axis.y + step.z * axis.z;
  };
  return std::hypot(along(view.Right()), along(view.Up())) * view.PixelsPerUnit();
}

}  // namespace

std::vector<POINT> GridDots(const ViewTransform& view, const UserSystem& system, double dx,
                            double dy) {
  std::vector<POINT> dots;
  if (!(dx > 0) || !(dy > 0)) return dots;
  if (PixelsOf(view, system.x * dx) < kDensestGrid || PixelsOf(view, system.y * dy) < kDensestGrid)
    return dots;
  const RECT r = view.Pixels();
  AcDbExtents seen;
  for (const POINT corner : {POINT{r.left, r.top}, POINT{r.right, r.top}, POINT{r.left, r.bottom},
                             POINT{r.right, r.bottom}})
    seen.addPoint(system.ToUser(view.ToWorld(corner)));
  const double i0 = std::ceil(seen.minPoint().x / dx), i1 = std::floor(seen.maxPoint().x / dx);
  const double j0 = std::ceil(seen.minPoint().y / dy), j1 = std::floor(seen.maxPoint().y / dy);
  if (!seen.isValid() || !((i1 - i0 + 1) * (j1 - j0 + 1) <= kMostDots)) return dots;
  for (double j = j0; j <= j1; ++j)
    for (double i = i0; i <= i1; ++i) {
      const POINT p = view.ToPixel(system.ToWorld(AcGePoint3d{i * dx, j * dy, 0}));
      if (p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom) dots.push_back(p);
    }
  return dots;
}

}  // namespace devhost
