// Commands that add entities: LINE, CIRCLE, PLINE, TEXT.
#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>

#include "aced.h"
#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/commands/native_commands.h"
#include "devhost/core/host/host.h"
#include "devhost/core/host/user_points.h"

namespace devhost {
namespace {

AcGePoint3d Of(const ads_point p) { return WorldOfUser(p); }  // entities are in world coordinates

double AngleOf(const AcGeVector3d& direction) { return std::atan2(direction.y, direction.x); }

void Line() {
  ads_point from{}, to{};
  if (acedGetPoint(nullptr, L"指定第一点: ", from) != RTNORM) return;
  while (acedGetPoint(from, L"指定下一点: ", to) == RTNORM) {
    AddToDrawing(new AcDbLine(Of(from), Of(to)));
    std::copy(to, to + 3, from);
  }
}

void Circle() {
  ads_point center{};
  ads_real radius = 0;
  if (acedGetPoint(nullptr, L"指定圆的圆心: ", center) != RTNORM) return;
  acedInitGet(6, nullptr);
  if (acedGetDist(center, L"指定圆的半径: ", &radius) == RTNORM)
    AddToDrawing(new AcDbCircle(Of(center), radius));
}

void PLine() {
  ads_point from{}, to{};
  if (acedGetPoint(nullptr, L"指定起点: ", from) != RTNORM) return;
  auto polyline = std::make_unique<AcDbPolyline>();
  polyline->addVertexAt(0, Of(from));
  for (;;) {
    acedInitGet(0, L"Close");
    const int status = acedGetPoint(from, L"指定下一点或 [闭合(C)]: ", to);
    if (status == RTKWORD) polyline->setClosed(true);
    if (status != RTNORM) break;
    polyline->addVertexAt(polyline->numVerts(), Of(to));
    std::copy(to, to + 3, from);
  }
  if (polyline->numVerts() > 1) AddToDrawing(polyline.release());
}

void Text() {
  ads_point at{};
  ads_real height = 2.5, angle = 0;
  ACHAR text[140];
  std::wstring stored;
  if (TheHost().variables.Get(L"TEXTSIZE", &stored) == VarResult::Ok)
    height = std::wcstod(stored.c_str(), nullptr);
  if (acedGetPoint(nullptr, L"指定文字的起点: ", at) != RTNORM) return;
  acedInitGet(6, nullptr);
  int status = acedGetDist(at, L"指定高度: ", &height);
  if (status != RTNORM && status != RTNONE) return;
  status = acedGetAngle(at, L"指定旋转角度 <0>: ", &angle);
  if (status != RTNORM && status != RTNONE) return;
  if (acedGetString(1, L"输入文字: ", text) == RTNORM && *text)
    AddToDrawing(new AcDbText(Of(at), text, height, angle + AngleOf(CurrentUserSystem().x)));
}

constexpr NativeCommand kDraw[] = {
    {L"CIRCLE", 0, Circle},
    {L"LINE", 0, Line},
    {L"PLINE", 0, PLine},
    {L"TEXT", 0, Text},
};

}  // namespace

void AddToDrawing(AcDbEntity* entity) {
  Document* document = TheHost().documents.Current();
  std::wstring layer = L"0";
  TheHost().variables.Get(L"CLAYER", &layer);
  entity->setLayer(layer.c_str());
  auto* space = AcDbBlockTableRecord::cast(document->database()->currentSpaceId().object());
  if (space->appendAcDbEntity(entity) != Acad::eOk) {
    delete entity;
    return;
  }
  TheHost().Ui().PictureChanged(*document);
}

std::span<const NativeCommand> DrawCommands() { return kDraw; }

}  // namespace devhost
