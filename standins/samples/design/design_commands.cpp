// The design commands; see the header.
#include "design_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>
#include <numbers>

#include "aced.h"
#include "add_entity.h"
#include "adslib.h"
#include "dbapserv.h"
#include "dbsymtb.h"
#include "export_drawing.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/entities/tdbdimension2.h"

namespace {

// mm on paper between the dimension line and the measured points
constexpr double kDimensionOff = 10;

template <class Entity>
std::unique_ptr<Entity> Make(const AcGePoint3d& start, double width = 0, double size = 0) {
  auto entity = std::make_unique<Entity>();
  entity->start = start;
  entity->end = start;
  entity->width = width;
  entity->size = size;
  return entity;
}

void DrawWalls() {
  ads_point from{}, to{};
  int count = 0;
  if (acedGetPoint(nullptr, L"\n起点或 <退出>: ", from) != RTNORM) return;
  while (acedGetPoint(from, L"\n直墙下一点或 <结束>: ", to) == RTNORM) {
    auto wall = Make<QvxDbWall>(WorldPoint(from), 240, 3000);
    wall->end = WorldPoint(to);
    AddEntity(std::move(wall), L"WALL", 9);
    std::copy(to, to + 3, from);
    ++count;
  }
  acutPrintf(L"\n共绘制 %d 段墙。\n", count);
}

void DrawAxes() {
  ads_point at{};
  ads_real bay = 3600, depth = 4200;
  int columns = 3, rows = 2;
  acedInitGet(6, nullptr);
  int status = acedGetInt(L"\n开间数 <3>: ", &columns);
  if (status == RTCAN) return;
  acedInitGet(6, nullptr);
  status = acedGetInt(L"\n进深数 <2>: ", &rows);
  if (status == RTCAN) return;
  if (acedGetPoint(nullptr, L"\n插入点: ", at) != RTNORM) return;
  columns = std::min(columns, 100);
  rows = std::min(rows, 100);
  const double width = bay * columns, height = depth * rows, over = 1500;
  for (int i = 0; i <= columns; ++i)
    AddEntity(std::make_unique<AcDbLine>(AcGePoint3d(at[0] + bay * i, at[1] - over, 0),
                                         AcGePoint3d(at[0] + bay * i, at[1] + height + over, 0)),
              L"DOTE", 1);
  for (int i = 0; i <= rows; ++i)
    AddEntity(std::make_unique<AcDbLine>(AcGePoint3d(at[0] - over, at[1] + depth * i, 0),
                                         AcGePoint3d(at[0] + width + over, at[1] + depth * i, 0)),
              L"DOTE", 1);
  acutPrintf(L"\n轴网 %d x %d。\n", columns, rows);
}

void NumberAxis() {
  ads_point at{};
  ACHAR label[140];
  if (acedGetPoint(nullptr, L"\n轴号位置: ", at) != RTNORM) return;
  if (acedGetString(0, L"\n轴号 <1>: ", label) != RTNORM) return;
  auto number = Make<QvxDbAxisNumber>(WorldPoint(at), 400);
  number->label = *label ? label : L"1";
  AddEntity(std::move(number), L"AXIS", 3);
}

void InsertColumn() {
  ads_point at{};
  while (acedGetPoint(nullptr, L"\n柱子插入点 <退出>: ", at) == RTNORM)
    AddEntity(Make<QvxDbColumn>(WorldPoint(at), 400, 400), L"COLUMN", 9);
}

// The wall with the nearest axis within reach, and the nearest point on it.
const QvxDbWall* WallNear(const AcGePoint3d& p, AcGePoint3d* foot) {
  constexpr double kReach = 400;
  const QvxDbWall* best = nullptr;
  double nearest = kReach;
  for (AcDbObjectId id : CurrentSpace()->entities()) {
    const QvxDbWall* wall = id.isErased() ? nullptr : QvxDbWall::cast(id.object());
    if (!wall) continue;
    const double length = wall->start.distanceTo(wall->end);
    if (length <= 0) continue;
    const AcGeVector3d along = (wall->end - wall->start).normal(), offset = p - wall->start;
    const double t = std::clamp(offset.x * along.x + offset.y * along.y, 0.0, length);
    const AcGePoint3d at = wall->start + along * t;
    if (p.distanceTo(at) > nearest) continue;
    nearest = p.distanceTo(at);
    best = wall;
    *foot = at;
  }
  return best;
}

void InsertOpenings(int kind, double size, const wchar_t* label, const wchar_t* prompt) {
  ads_point at{};
  while (acedGetPoint(nullptr, prompt, at) == RTNORM) {
    AcGePoint3d foot = WorldPoint(at);
    const QvxDbWall* wall = WallNear(WorldPoint(at), &foot);
    if (!wall) {
      acutPrintf(L"\n附近没有墙，请在墙上点取。\n");
      continue;
    }
    auto opening = Make<QvxDbOpening>(foot, wall->width, size);
    opening->angle = std::atan2(wall->end.y - wall->start.y, wall->end.x - wall->start.x);
    opening->kind = kind;
    opening->label = label;
    AddEntity(std::move(opening), L"WINDOW", 4);
  }
}

void InsertDoors() { InsertOpenings(0, 900, L"M0921", L"\n点取门的位置 <退出>: "); }
void InsertWindows() { InsertOpenings(1, 1500, L"C1515", L"\n点取窗的位置 <退出>: "); }

void DrawStair() {
  ads_point at{};
  if (acedGetPoint(nullptr, L"\n梯段左下角: ", at) != RTNORM) return;
  auto stair = Make<QvxDbStair>(WorldPoint(at), 1200, 3000);
  stair->kind = 11;
  AddEntity(std::move(stair), L"STAIR", 2);
}

void DrawRoom() {
  ads_point a{}, b{};
  ACHAR name[140];
  if (acedGetPoint(nullptr, L"\n房间的一个角: ", a) != RTNORM) return;
  if (acedGetCorner(a, L"\n对角: ", b) != RTNORM) return;
  if (acedGetString(1, L"\n房间名称 <房间>: ", name) != RTNORM) return;
  auto room = std::make_unique<QvxDbSpace>();
  room->outline = {WorldPoint(a), {b[0], a[1], 0}, WorldPoint(b), {a[0], b[1], 0}};
  room->label = *name ? name : L"房间";
  acutPrintf(L"\n面积 %.2f 平方米。\n", room->Area() / 1e6);
  AddEntity(std::move(room), L"SPACE", 3);
}

void WriteText() {
  ads_point at{};
  ACHAR text[140];
  if (acedGetString(1, L"\n文字内容: ", text) != RTNORM || !*text) return;
  if (acedGetPoint(nullptr, L"\n插入位置: ", at) != RTNORM) return;
  auto label = Make<QvxDbText>(WorldPoint(at), 350);
  label->label = text;
  AddEntity(std::move(label), L"TEXT", 7);
}

void Dimension() {
  ads_point a{}, b{}, line{};
  if (acedGetPoint(nullptr, L"\n起点: ", a) != RTNORM) return;
  if (acedGetPoint(a, L"\n终点: ", b) != RTNORM) return;
  if (acedGetPoint(b, L"\n尺寸线位置: ", line) != RTNORM) return;
  const AcGeVector3d along = (WorldPoint(b) - WorldPoint(a)).normal(),
                     offset = WorldPoint(line) - WorldPoint(a);
  auto dimension =
      Make<TDbDimension2>(WorldPoint(a), along.x * offset.y - along.y * offset.x, kDimensionOff);
  dimension->end = WorldPoint(b);
  AddEntity(std::move(dimension), L"DIM", 3);
}

void AngularDimension() {
  ads_point corner{}, a{}, b{}, line{};
  if (acedGetPoint(nullptr, L"\n角的顶点: ", corner) != RTNORM) return;
  if (acedGetPoint(corner, L"\n第一边上一点: ", a) != RTNORM) return;
  if (acedGetPoint(corner, L"\n第二边上一点: ", b) != RTNORM) return;
  if (acedGetPoint(corner, L"\n尺寸线位置: ", line) != RTNORM) return;
  constexpr double kTurn = 2 * std::numbers::pi;
  const AcGeVector3d first = WorldPoint(a) - WorldPoint(corner),
                     second = WorldPoint(b) - WorldPoint(corner);
  const double sweep = std::atan2(second.y, second.x) - std::atan2(first.y, first.x);
  auto dimension = Make<TDbDimension2>(
      WorldPoint(corner), WorldPoint(corner).distanceTo(WorldPoint(line)), kDimensionOff);
  dimension->end = WorldPoint(a);
  dimension->kind = TDbDimension2::kAngular;
  dimension->angle = sweep < 0 ? sweep + kTurn : sweep;
  AddEntity(std::move(dimension), L"DIM", 3);
}

void MeasureRoom() {
  ads_name name{};
  ads_point at{};
  if (acedEntSel(L"\n选择房间: ", name, at) != RTNORM) return;
  AcDbObjectId id;
  QvxDbSpace* room = nullptr;
  if (acdbGetObjectId(id, name) != Acad::eOk ||
      acdbOpenObject(room, id, AcDb::kForRead) != Acad::eOk) {
    acutPrintf(L"\n不是房间。\n");
    return;
  }
  acutPrintf(L"\n%ls 面积 %.2f 平方米。\n", room->label.c_str(), room->Area() / 1e6);
  room->close();
}

void ToggleOrtho() {
  resbuf value{};
  if (acedGetVar(L"ORTHOMODE", &value) != RTNORM) return;
  value.resval.rint = value.resval.rint ? 0 : 1;
  acedSetVar(L"ORTHOMODE", &value);
}

}  // namespace

const DesignCommand kDesignCommands[] = {
    {L"TWall", DrawWalls},
    {L"TAxis", DrawAxes},
    {L"TAxisNo", NumberAxis},
    {L"TColumn", InsertColumn},
    {L"TDoor", InsertDoors},
    {L"TWindow", InsertWindows},
    {L"TStair", DrawStair},
    {L"TRoom", DrawRoom},
    {L"TText", WriteText},
    {L"TDim2P", Dimension},
    {L"TDimAngle", AngularDimension},
    {L"TArea", MeasureRoom},
    {L"TOrtho", ToggleOrtho},
    {L"TSaveAs", ExportDrawing},
};
const int kDesignCommandCount = sizeof kDesignCommands / sizeof *kDesignCommands;
