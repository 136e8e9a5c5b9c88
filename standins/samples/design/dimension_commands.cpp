// Commands that draw dimensions; declared with the other symbols.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "adslib.h"
#include "dbents.h"
#include "design_input.h"
#include "kernel/entities/tdbdimension2.h"
#include "note_entities.h"
#include "plane_shapes.h"
#include "symbol_commands.h"

namespace {

constexpr wchar_t kLayer[] = L"DIM";
constexpr int kColor = 3;
// mm on paper between the dimension line and the measured points
constexpr double kDimensionOff = 10;
constexpr double kOnAxis = 1;  // an opening at most this far from the axis is in the wall

// Dimensions between the points in turn, on one line at this distance to the left of the first
// point's way to the last.
void AddChain(const std::vector<AcGePoint3d>& points, double left) {
  for (std::size_t i = 1; i < points.size(); ++i)
    AddEntity(MakeBetween<TDbDimension2>(points[i - 1], points[i], left, kDimensionOff), kLayer,
              kColor);
}

// The points moved onto the line from the first to the last, in their order along it.
std::vector<AcGePoint3d> OnOneLine(const std::vector<AcGePoint3d>& points) {
  const AcGePoint3d first = points.front();
  const AcGeVector3d along = (points.back() - first).normal();
  std::vector<double> ways;
  for (const AcGePoint3d& point : points) ways.push_back(DotOf(point - first, along));
  std::sort(ways.begin(), ways.end());
  std::vector<AcGePoint3d> line;
  for (double way : ways) line.push_back(first + along * way);
  return line;
}

double LeftDistance(const AcGePoint3d& from, const AcGePoint3d& to, const AcGePoint3d& at) {
  return DotOf(at - from, LeftOf((to - from).normal()));
}

// Both ends of the wall and of the openings in it, along its axis.
std::vector<AcGePoint3d> EdgesIn(const QvxDbWall& wall) {
  std::vector<AcGePoint3d> edges = {wall.start};
  const double length = wall.start.distanceTo(wall.end);
  const AcGeVector3d along = (wall.end - wall.start).normal();
  for (AcDbObjectId id : CurrentSpace()->entities()) {
    const QvxDbOpening* opening = id.isErased() ? nullptr : QvxDbOpening::cast(id.object());
    if (!opening) continue;
    const AcGeVector3d way = opening->start - wall.start;
    const double at = DotOf(way, along);
    if (std::fabs(DotOf(way, LeftOf(along))) > kOnAxis || at < 0 || at > length) continue;
    edges.push_back(wall.start + along * (at - opening->size / 2));
    edges.push_back(wall.start + along * (at + opening->size / 2));
  }
  edges.push_back(wall.end);
  return OnOneLine(edges);
}

const QvxDbWall* PickWall(AcGePoint3d* at) {
  const AcDbObjectId id = PickObject(L"\n选择墙: ", at);
  const QvxDbWall* wall = id.isNull() ? nullptr : QvxDbWall::cast(id.object());
  if (!wall && !id.isNull()) acutPrintf(L"\n不是墙。\n");
  return wall;
}

}  // namespace

void Dimension() {
  ads_point a{}, b{}, line{};
  if (!TwoPoints(a, b) || !AskPoint(L"\n尺寸线位置: ", line, b)) return;
  const AcGePoint3d from = WorldPoint(a), to = WorldPoint(b);
  AddChain({from, to}, LeftDistance(from, to, WorldPoint(line)));
}

void DimensionPoints() {
  ads_point at{}, line{};
  std::vector<AcGePoint3d> points;
  if (!AskPoint(L"\n第一个标注点: ", at)) return;
  int status = RTNORM;
  for (; status == RTNORM; status = acedGetPoint(at, L"\n下一个标注点或 <结束>: ", at))
    points.push_back(WorldPoint(at));
  if (status == RTCAN || points.size() < 2 || !AskPoint(L"\n尺寸线位置: ", line, at)) return;
  points = OnOneLine(points);
  AddChain(points, LeftDistance(points.front(), points.back(), WorldPoint(line)));
}

void DimensionWall() {
  AcGePoint3d at;
  const QvxDbWall* wall = PickWall(&at);
  if (!wall) return;
  const AcGeVector3d along = (wall->end - wall->start).normal(), left = LeftOf(along);
  const AcGePoint3d foot = wall->start + along * DotOf(at - wall->start, along);
  AddChain({foot - left * (wall->width / 2), foot + left * (wall->width / 2)}, 0);
}

void DimensionWallOpenings() {
  ads_point line{};
  const QvxDbWall* wall = PickWall(nullptr);
  if (!wall) return;
  const std::vector<AcGePoint3d> edges = EdgesIn(*wall);
  if (!AskPoint(L"\n尺寸线位置: ", line)) return;
  AddChain(edges, LeftDistance(edges.front(), edges.back(), WorldPoint(line)));
}

void DimensionRadius() {
  AcGePoint3d at;
  const AcDbObjectId id = PickObject(L"\n选择圆或圆弧: ", &at);
  if (id.isNull()) return;
  const AcDbCircle* circle = AcDbCircle::cast(id.object());
  if (!circle) return static_cast<void>(acutPrintf(L"\n不是圆或圆弧。\n"));
  const AcGePoint3d center = circle->center();
  AddEntity(MakeBetween<QvxDbNoteOf<kRadiusDimension>>(
                center, center + (at - center).normal() * circle->radius()),
            kLayer, kColor);
}

void AngularDimension() {
  ads_point corner{}, a{}, b{}, line{};
  if (!AskPoint(L"\n角的顶点: ", corner) || !AskPoint(L"\n第一边上一点: ", a, corner)) return;
  if (!AskPoint(L"\n第二边上一点: ", b, corner) || !AskPoint(L"\n尺寸线位置: ", line, corner))
    return;
  constexpr double kTurn = 2 * std::numbers::pi;
  const AcGePoint3d middle = WorldPoint(corner);
  const AcGeVector3d first = WorldPoint(a) - middle, second = WorldPoint(b) - middle;
  const double sweep = std::atan2(second.y, second.x) - std::atan2(first.y, first.x);
  auto dimension = MakeBetween<TDbDimension2>(middle, WorldPoint(a),
                                              middle.distanceTo(WorldPoint(line)), kDimensionOff);
  dimension->kind = TDbDimension2::kAngular;
  dimension->angle = sweep < 0 ? sweep + kTurn : sweep;
  AddEntity(std::move(dimension), kLayer, kColor);
}
