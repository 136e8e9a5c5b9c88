#include "wall_commands.h"

#include <algorithm>
#include <cwchar>
#include <set>

#include "adslib.h"
#include "dbents.h"
#include "design_input.h"
#include "kernel/entities/qvx_entity.h"
#include "plane_shapes.h"

namespace {

constexpr double kWidth = 240, kHeight = 3000, kColumn = 400;
constexpr int kColor = 9;

void AddWall(const AcGePoint3d& from, const AcGePoint3d& to, double width = kWidth,
             double height = kHeight) {
  AddEntity(MakeBetween<QvxDbWall>(from, to, width, height), L"WALL", kColor);
}

int AddWalls(const std::vector<AcGePoint3d>& points, double width) {
  for (std::size_t i = 1; i < points.size(); ++i) AddWall(points[i - 1], points[i], width);
  return static_cast<int>(points.size()) - 1;
}

void PrintWalls(int count) { acutPrintf(L"\n共绘制 %d 段墙。\n", count); }

// The way of a line or an arc; empty for other objects.
std::vector<AcGePoint3d> WayOf(const AcDbEntity& entity) {
  if (const AcDbLine* line = AcDbLine::cast(&entity)) return {line->startPoint(), line->endPoint()};
  const AcDbArc* arc = AcDbArc::cast(&entity);
  if (!arc) return {};
  constexpr double kTurn = 6.283185307179586;
  double sweep = arc->endAngle() - arc->startAngle();
  if (sweep <= 0) sweep += kTurn;
  return ChordsOf({arc->center(), arc->radius(), arc->startAngle(), sweep});
}

std::vector<const AcDbLine*> AxesIn(const TPickEntSet& set) {
  std::vector<const AcDbLine*> axes;
  for (int i = 0; i < set.Length(); ++i) {
    const AcDbObjectId id = set[i].ObjectId();
    const AcDbLine* line = id.isErased() ? nullptr : AcDbLine::cast(id.object());
    if (line && std::wcscmp(line->layer(), L"DOTE") == 0) axes.push_back(line);
  }
  return axes;
}

// The part of an axis between its first and last crossing with the others; false without two.
bool CrossedPart(const AcDbLine& axis, const std::vector<const AcDbLine*>& others,
                 AcGePoint3d& from, AcGePoint3d& to) {
  const AcGePoint3d a = axis.startPoint(), b = axis.endPoint();
  std::set<double> ways;
  for (const AcDbLine* other : others)
    if (other != &axis)
      if (const auto way = Crossing(a, b, other->startPoint(), other->endPoint()))
        ways.insert(*way);
  if (ways.size() < 2) return false;
  from = a + (b - a) * *ways.begin();
  to = a + (b - a) * *ways.rbegin();
  return true;
}

template <class Set>
void SetOfWalls(const wchar_t* prompt, double value, Set set) {
  TPickEntSet chosen;
  if (!Chosen(chosen) || !AskSize(prompt, value)) return;
  const int count = ChangeEach<QvxDbWall>(chosen, [&](QvxDbWall& wall) {
    set(wall, value);
    return true;
  });
  acutPrintf(L"\n修改了 %d 段墙。\n", count);
  acedRedraw(nullptr, 0);
}

}  // namespace

void DrawWalls() {
  ads_point from{}, to{};
  int count = 0;
  if (!AskPoint(L"\n起点或 <退出>: ", from)) return;
  while (AskPoint(L"\n直墙下一点或 <结束>: ", to, from)) {
    AddWall(WorldPoint(from), WorldPoint(to));
    std::copy(to, to + 3, from);
    ++count;
  }
  PrintWalls(count);
}

void DrawArcWall() {
  ads_point a{}, b{}, middle{};
  double width = kWidth;
  if (!AskPoint(L"\n弧墙起点: ", a) || !AskPoint(L"\n弧墙终点: ", b, a)) return;
  if (!AskPoint(L"\n弧上一点: ", middle, b) || !AskSize(L"墙厚", width)) return;
  const auto arc = ArcThrough(WorldPoint(a), WorldPoint(middle), WorldPoint(b));
  if (!arc) return static_cast<void>(acutPrintf(L"\n三点在一条直线上。\n"));
  PrintWalls(AddWalls(ChordsOf(*arc), width));
}

void LinesToWalls() {
  TPickEntSet set;
  double width = kWidth;
  if (!Chosen(set) || !AskSize(L"墙厚", width)) return;
  int count = 0;
  ChangeEach<AcDbEntity>(set, [&](AcDbEntity& entity) {
    const std::vector<AcGePoint3d> way = WayOf(entity);
    if (way.empty()) return false;
    count += AddWalls(way, width);
    return entity.erase() == Acad::eOk;
  });
  PrintWalls(count);
}

void AxesToWalls() {
  TPickEntSet set;
  double width = kWidth;
  if (!Chosen(set) || !AskSize(L"墙厚", width)) return;
  const std::vector<const AcDbLine*> axes = AxesIn(set);
  int count = 0;
  for (const AcDbLine* axis : axes) {
    AcGePoint3d from, to;
    if (CrossedPart(*axis, axes, from, to)) count += AddWalls({from, to}, width);
  }
  PrintWalls(count);
}

void OffsetWall() {
  ads_point side{};
  double clear = 1500;
  const AcDbObjectId id = PickObject(L"\n选择墙: ");
  if (id.isNull()) return;
  const QvxDbWall* wall = QvxDbWall::cast(id.object());
  if (!wall) return static_cast<void>(acutPrintf(L"\n不是墙。\n"));
  const AcGePoint3d start = wall->start, end = wall->end;
  const double width = wall->width, height = wall->size;
  if (!AskSize(L"净距", clear) || !AskPoint(L"\n偏移的一侧: ", side)) return;
  const AcGeVector3d left = LeftOf((end - start).normal());
  const double sign = DotOf(WorldPoint(side) - start, left) < 0 ? -1 : 1;
  const AcGeVector3d by = left * (sign * (clear + width));
  AddWall(start + by, end + by, width, height);
}

void SetWallWidth() {
  SetOfWalls(L"新的墙厚", kWidth, [](QvxDbWall& wall, double value) { wall.width = value; });
}

void SetWallHeight() {
  SetOfWalls(L"新的墙高", kHeight, [](QvxDbWall& wall, double value) { wall.size = value; });
}

void InsertColumn() {
  ads_point at{};
  while (AskPoint(L"\n柱子插入点 <退出>: ", at))
    AddEntity(MakeAt<QvxDbColumn>(WorldPoint(at), kColumn, kColumn), L"COLUMN", kColor);
}
