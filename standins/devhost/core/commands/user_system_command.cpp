// The command UCS: the user coordinate system of the current space.
#include <numbers>

#include "aced.h"
#include "adslib.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"

namespace devhost {
namespace {

void Change(const UserSystem& system) {
  Document& document = *TheHost().documents.Current();
  ChangeUserSystem(document, system);
  TheHost().Ui().ViewChanged(document);
}

// Asks for a point; `*point` is the answer for Enter alone. False: cancelled.
bool AskPoint(const ads_point base, const wchar_t* prompt, ads_point point) {
  const int status = acedGetPoint(base, prompt, point);
  return status == RTNORM || status == RTNONE;
}

void ThreePoints() {
  ads_point origin = {0, 0, 0};
  if (!AskPoint(nullptr, L"指定新原点 <0,0,0>: ", origin)) return;
  ads_point onX = {origin[0] + 1, origin[1], origin[2]};
  if (!AskPoint(origin, L"在正 X 轴范围上指定点: ", onX)) return;
  const AcGeVector3d x(onX[0] - origin[0], onX[1] - origin[1], onX[2] - origin[2]);
  ads_point onY = {origin[0] - x.y, origin[1] + x.x, origin[2]};
  if (!AskPoint(origin, L"在 UCS XY 平面的正 Y 轴范围上指定点: ", onY)) return;
  UserSystem system;
  if (SystemOfThreePoints(WorldOfUser(origin), WorldOfUser(onX), WorldOfUser(onY), &system))
    Change(system);
  else
    TheHost().Print(L"\n三点共线，UCS 不变。\n");
}

void MoveOrigin(const ads_point origin) {
  UserSystem system = CurrentUserSystem();
  system.origin = WorldOfUser(origin);
  Change(system);
}

void TurnAboutZ() {
  ads_real angle = std::numbers::pi / 2;
  const int status = acedGetAngle(nullptr, L"指定绕 Z 轴的旋转角度 <90>: ", &angle);
  if (status == RTNORM || status == RTNONE) Change(RotatedAboutZ(CurrentUserSystem(), angle));
}

void Ucs() {
  ads_point origin{};
  ACHAR word[40] = L"World";
  acedInitGet(0, L"World Origin 3point Z");
  const int status =
      acedGetPoint(nullptr, L"指定 UCS 的原点或 [世界(W)/原点(O)/三点(3)/Z] <世界>: ", origin);
  if (status == RTNORM) return MoveOrigin(origin);
  if (status == RTKWORD) acedGetInput(word);
  if (status != RTKWORD && status != RTNONE) return;
  switch (word[0]) {
    case L'W':
      return Change(UserSystem());
    case L'3':
      return ThreePoints();
    case L'Z':
      return TurnAboutZ();
    case L'O':
      if (acedGetPoint(nullptr, L"指定新原点: ", origin) == RTNORM) MoveOrigin(origin);
      return;
  }
}

constexpr NativeCommand kUserSystem[] = {{L"UCS", 0, Ucs}};

}  // namespace

std::span<const NativeCommand> UserSystemCommands() { return kUserSystem; }

}  // namespace devhost
