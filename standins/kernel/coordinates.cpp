#include "kernel/coordinates.h"

#include "adslib.h"

AcGePoint3d Converted(const AcGePoint3d& point, CoordinateSystem from, CoordinateSystem to) {
  const ads_point given = {point.x, point.y, point.z};
  ads_point result = {point.x, point.y, point.z};
  resbuf source{}, target{};
  source.restype = target.restype = RTSHORT;
  source.resval.rint = static_cast<short>(from);
  target.resval.rint = static_cast<short>(to);
  acedTrans(given, &source, &target, 0, result);
  return {result[0], result[1], result[2]};
}
