// Points that cross the published interface are in the user coordinate system of the current
// drawing; entities, views and the command engine use world coordinates.
#pragma once

#include "adsdef.h"
#include "devhost/core/base/user_system.h"

namespace devhost {

UserSystem CurrentUserSystem();  // that of the current drawing; world without one
AcGePoint3d WorldOfUser(const ads_point user);
void UserOfWorld(const AcGePoint3d& world, ads_point user);

}  // namespace devhost
