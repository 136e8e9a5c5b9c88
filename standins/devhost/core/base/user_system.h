// A user coordinate system: an origin and two perpendicular unit axes, in world coordinates.
#pragma once

#include "gepnt3d.h"

namespace devhost {

struct UserSystem {
  AcGePoint3d origin;
  AcGeVector3d x = AcGeVector3d::kXAxis, y = AcGeVector3d::kYAxis;

  AcGeVector3d Z() const;
  bool IsWorld() const;
  AcGeVector3d ToUser(const AcGeVector3d& world) const;
  AcGeVector3d ToWorld(const AcGeVector3d& user) const;
  AcGePoint3d ToUser(const AcGePoint3d& world) const;
  AcGePoint3d ToWorld(const AcGePoint3d& user) const;
};

// The system with its x axis towards `onX` and its y axis on the side of `onY`. False, with
// `*system` unchanged, if the three points are on one line or a coordinate is not finite.
bool SystemOfThreePoints(const AcGePoint3d& origin, const AcGePoint3d& onX, const AcGePoint3d& onY,
                         UserSystem* system);
UserSystem RotatedAboutZ(const UserSystem& system, double angle);  // radians

}  // namespace devhost
