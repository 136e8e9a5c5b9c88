// User coordinate systems; see the header.
#include "devhost/core/base/user_system.h"

#include <cmath>

namespace devhost {
namespace {

constexpr double kShortest = 1e-10;  // drawing units; a shorter vector has no direction

double Dot(const AcGeVector3d& a, const AcGeVector3d& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

AcGeVector3d Cross(const AcGeVector3d& a, const AcGeVector3d& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

const AcGePoint3d kWorldOrigin;

}  // namespace

AcGeVector3d UserSystem::Z() const { return Cross(x, y); }

bool UserSystem::IsWorld() const {
  return origin.distanceTo(kWorldOrigin) == 0 && Dot(x, AcGeVector3d::kXAxis) == 1 &&
         Dot(y, AcGeVector3d::kYAxis) == 1;
}

AcGeVector3d UserSystem::ToUser(const AcGeVector3d& world) const {
  return {Dot(world, x), Dot(world, y), Dot(world, Z())};
}

AcGeVector3d UserSystem::ToWorld(const AcGeVector3d& user) const {
  return x * user.x + y * user.y + Z() * user.z;
}

AcGePoint3d UserSystem::ToUser(const AcGePoint3d& world) const {
  return kWorldOrigin + ToUser(world - origin);
}

AcGePoint3d UserSystem::ToWorld(const AcGePoint3d& user) const {
  return origin + ToWorld(user - kWorldOrigin);
}

bool SystemOfThreePoints(const AcGePoint3d& origin, const AcGePoint3d& onX, const AcGePoint3d& onY,
                         UserSystem* system) {
  const AcGeVector3d x = onX - origin, side = onY - origin;
  if (!(x.length() > kShortest) || !std::isfinite(x.length())) return false;
  const AcGeVector3d unit = x.normal();
  const AcGeVector3d y = side + unit * -Dot(side, unit);
  // Relative, so that rounding of far away points is not taken for a direction.
  if (!(y.length() > kShortest * (1 + side.length())) || !std::isfinite(y.length())) return false;
  *system = {origin, unit, y.normal()};
  return true;
}

UserSystem RotatedAboutZ(const UserSystem& system, double angle) {
  const double c = std::cos(angle), s = std::sin(angle);
  return {system.origin, system.x * c + system.y * s, system.y * c + system.x * -s};
}

}  // namespace devhost
