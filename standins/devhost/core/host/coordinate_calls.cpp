// The published conversion between coordinate systems, and that of input points.
#include <algorithm>
#include <optional>

#include "adslib.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"

namespace devhost {
namespace {

enum SystemCode { kWorld = 0, kUser = 1, kDisplay = 2 };

AcGePoint3d Of(const ads_point p) { return {p[0], p[1], p[2]}; }

void Store(double x, double y, double z, ads_point out) {
  out[0] = x;
  out[1] = y;
  out[2] = z;
}

// The axes of the current viewport's screen; all views have their target at the world's origin.
UserSystem DisplaySystem() {
  const Document* document = TheHost().documents.FindDocument(TheHost().documents.curDocument());
  return document ? UserSystem{{}, document->view.Right(), document->view.Up()} : UserSystem();
}

std::optional<UserSystem> SystemOf(const resbuf* code) {
  if (!code || code->restype != RTSHORT) return std::nullopt;
  switch (code->resval.rint) {
    case kWorld:
      return UserSystem();
    case kDisplay:
      return DisplaySystem();
    case kUser:
      return CurrentUserSystem();
  }
  return std::nullopt;
}

}  // namespace

UserSystem CurrentUserSystem() {
  const AcApDocument* current = TheHost().documents.curDocument();
  return current ? current->database()->body().CurrentSystem() : UserSystem();
}

AcGePoint3d WorldOfUser(const ads_point user) { return CurrentUserSystem().ToWorld(Of(user)); }

void UserOfWorld(const AcGePoint3d& world, ads_point user) {
  const AcGePoint3d p = CurrentUserSystem().ToUser(world);
  Store(p.x, p.y, p.z, user);
}

}  // namespace devhost

using namespace devhost;

int acedTrans(const ads_point point, const resbuf* from, const resbuf* to, int vector,
              ads_point result) {
  const std::optional<UserSystem> source = SystemOf(from), target = SystemOf(to);
  if (!point || !result || !source || !target) return RTERROR;
  if (vector) {
    const AcGeVector3d v = target->ToUser(source->ToWorld(Of(point) - AcGePoint3d()));
    Store(v.x, v.y, v.z, result);
  } else {
    const AcGePoint3d p = target->ToUser(source->ToWorld(Of(point)));
    Store(p.x, p.y, p.z, result);
  }
  return RTNORM;
}
