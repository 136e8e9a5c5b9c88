// Zoom at a point. The view is set at once and not by a command: the caller goes on with the pixels
// of the new view.
#include <cmath>

#include "aced.h"
#include "adslib.h"
#include "dbsymtb.h"
#include "kernel/coordinates.h"
#include "kernel/qvxexport.h"

namespace {

bool ReadView(AcGePoint3d& middle, double& height) {
  resbuf center{}, size{};
  if (acedGetVar(L"VIEWCTR", &center) != RTNORM || acedGetVar(L"VIEWSIZE", &size) != RTNORM ||
      (center.restype != RTPOINT && center.restype != RT3DPOINT) || size.restype != RTREAL)
    return false;
  const ads_point& p = center.resval.rpoint;
  middle = Converted({p[0], p[1], p[2]}, CoordinateSystem::User, CoordinateSystem::Display);
  height = size.resval.rreal;
  return true;
}

}  // namespace

void QvxExport::ArxZoomCursor(const AcGePoint3d& at, double factor) {
  AcGePoint3d middle;
  double height = 0;
  if (!(factor > 0) || !std::isfinite(factor) || !ReadView(middle, height)) return;
  const AcGePoint3d kept = Converted(at, CoordinateSystem::World, CoordinateSystem::Display);
  AcDbViewTableRecord view;
  view.setCenterPoint(
      {kept.x + (middle.x - kept.x) / factor, kept.y + (middle.y - kept.y) / factor});
  view.setHeight(height / factor);
  acedSetCurrentView(&view, nullptr);
}
