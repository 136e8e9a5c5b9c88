#include "building_commands.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>

#include "adslib.h"
#include "dbents.h"
#include "design_input.h"
#include "kernel/drawing_scale.h"
#include "kernel/entities/qvx_entity.h"
#include "plane_shapes.h"

namespace {

constexpr wchar_t kStairs[] = L"STAIR", kRooms[] = L"SPACE";
constexpr int kStairColor = 2, kRoomColor = 3, kMostSteps = 60, kMostTiles = 200;
constexpr double kTread = 270, kRunWidth = 1200;
constexpr double kSquareMetre = 1e6;

const QvxDbSpace* PickRoom(AcDbObjectId id) {
  const QvxDbSpace* room = id.isNull() ? nullptr : QvxDbSpace::cast(id.object());
  if (!room && !id.isNull()) acutPrintf(L"\n不是房间。\n");
  return room;
}

void AddStairLine(const AcGePoint3d& from, const AcGePoint3d& to) {
  AddLine(from, to, kStairs, kStairColor);
}

// The paper with its long side across, in millimetres.
struct Paper {
  const wchar_t* name;
  double width, height;
};
constexpr Paper kPapers[] = {
    {L"A0", 1189, 841}, {L"A1", 841, 594}, {L"A2", 594, 420}, {L"A3", 420, 297}, {L"A4", 297, 210}};

const Paper* AskPaper() {
  acedInitGet(0, L"A0 A1 A2 A3 A4");
  ACHAR word[40] = L"";
  const int status = acedGetKword(L"\n图幅 [A0/A1/A2/A3/A4] <A2>: ", word);
  if (status == RTNONE) return &kPapers[2];
  if (status != RTNORM) return nullptr;
  for (const Paper& paper : kPapers)
    if (std::wcscmp(paper.name, word) == 0) return &paper;
  return nullptr;
}

}  // namespace

void DrawRoom() {
  ads_point a{}, b{};
  std::wstring name = L"房间";
  if (!AskPoint(L"\n房间的一个角: ", a) || !AskCorner(L"\n对角: ", b, a)) return;
  if (!AskText(L"房间名称", name)) return;
  auto room = std::make_unique<QvxDbSpace>();
  ads_point right = {b[0], a[1], 0}, left = {a[0], b[1], 0};
  room->outline = {WorldPoint(a), WorldPoint(right), WorldPoint(b), WorldPoint(left)};
  room->label = name;
  acutPrintf(L"\n面积 %.2f 平方米。\n", room->Area() / kSquareMetre);
  AddEntity(std::move(room), kRooms, kRoomColor);
}

void MeasureRoom() {
  if (const QvxDbSpace* room = PickRoom(PickObject(L"\n选择房间: ")))
    acutPrintf(L"\n%ls 面积 %.2f 平方米。\n", room->label.c_str(), room->Area() / kSquareMetre);
}

void SumRooms() {
  TPickEntSet set;
  if (!Chosen(set)) return;
  double area = 0;
  int count = 0;
  for (int i = 0; i < set.Length(); ++i) {
    const TAcDbObjectPtr<QvxDbSpace> room(set[i].ObjectId(), AcDb::kForRead);
    if (!room) continue;
    area += room->Area();
    ++count;
  }
  acutPrintf(L"\n%d 个房间，共 %.2f 平方米。\n", count, area / kSquareMetre);
}

void OutlineRoom() {
  if (const QvxDbSpace* room = PickRoom(PickObject(L"\n选择房间: ")))
    AddPolyline(std::vector<AcGePoint3d>(room->outline), true, kRooms, kRoomColor);
}

void DrawFloorTiles() {
  ads_point a{}, b{};
  double size = 600;
  if (!TwoCorners(a, b) || !AskSize(L"地砖边长", size)) return;
  const AcGePoint3d p = WorldPoint(a), q = WorldPoint(b);
  const double left = std::min(p.x, q.x), right = std::max(p.x, q.x), bottom = std::min(p.y, q.y),
               top = std::max(p.y, q.y);
  AddBox({left, bottom, 0}, {right, top, 0}, L"SURFACE", 8);
  for (int i = 1; i < kMostTiles && left + i * size < right; ++i)
    AddLine({left + i * size, bottom, 0}, {left + i * size, top, 0}, L"SURFACE", 8);
  for (int i = 1; i < kMostTiles && bottom + i * size < top; ++i)
    AddLine({left, bottom + i * size, 0}, {right, bottom + i * size, 0}, L"SURFACE", 8);
}

void DrawStair() {
  ads_point at{};
  if (!AskPoint(L"\n梯段左下角: ", at)) return;
  auto stair = MakeAt<QvxDbStair>(WorldPoint(at), kRunWidth, 3000);
  stair->kind = 11;
  AddEntity(std::move(stair), kStairs, kStairColor);
}

void DrawArcStair() {
  ads_point center{}, first{};
  double width = kRunWidth, angle = 90;
  int steps = 12;
  if (!AskPoint(L"\n圆弧梯段的圆心: ", center)) return;
  if (!AskPoint(L"\n内弧起点: ", first, center) || !AskSize(L"梯段宽", width)) return;
  if (!AskSize(L"圆心角", angle) || !AskCount(L"踏步数", steps, kMostSteps)) return;
  const AcGePoint3d middle = WorldPoint(center);
  const AcGeVector3d way = WorldPoint(first) - middle;
  const double radius = way.length(), from = std::atan2(way.y, way.x),
               sweep = std::min(angle, 360.0) * std::numbers::pi / 180;
  for (double r : {radius, radius + width})
    AddEntity(std::make_unique<AcDbArc>(middle, r, from, from + sweep), kStairs, kStairColor);
  for (int i = 0; i <= steps; ++i)
    AddStairLine(OnCircle(middle, radius, from + sweep * i / steps),
                 OnCircle(middle, radius + width, from + sweep * i / steps));
}

// Two runs with a gap, and the landing at their upper ends.
void DrawDoubleStair() {
  ads_point at{};
  double width = kRunWidth, gap = 100;
  int steps = 9;
  if (!AskPoint(L"\n双跑楼梯左下角: ", at) || !AskSize(L"梯段宽", width)) return;
  if (!AskSize(L"梯井宽", gap) || !AskCount(L"一跑踏步数", steps, kMostSteps)) return;
  const AcGePoint3d corner = WorldPoint(at);
  const double length = kTread * steps;
  for (double x : {0.0, width + gap}) {
    auto run = MakeAt<QvxDbStair>(corner + AcGeVector3d(x, 0, 0), width, length);
    run->kind = steps;
    AddEntity(std::move(run), kStairs, kStairColor);
  }
  AddBox({corner.x, corner.y + length, 0},
         {corner.x + 2 * width + gap, corner.y + length + width, 0}, kStairs, kStairColor);
}

// The car with its diagonals, and the counterweight along its upper side.
void DrawLift() {
  ads_point a{}, b{};
  if (!TwoCorners(a, b)) return;
  const AcGePoint3d p = WorldPoint(a), q = WorldPoint(b);
  const double x = (q.x - p.x) / 4, y = (q.y - p.y) / 10;
  AddBox(p, q, kStairs, kStairColor);
  AddStairLine({p.x, p.y, 0}, {q.x, q.y - 2 * y, 0});
  AddStairLine({p.x, q.y - 2 * y, 0}, {q.x, p.y, 0});
  AddBox({p.x + x, q.y - 1.5 * y, 0}, {q.x - x, q.y - 0.5 * y, 0}, kStairs, kStairColor);
}

void DrawSteps() {
  ads_point a{}, b{};
  int steps = 3;
  double tread = 300;
  if (!TwoCorners(a, b) || !AskCount(L"台阶数", steps, kMostSteps)) return;
  if (!AskSize(L"踏步宽", tread)) return;
  const AcGePoint3d p = WorldPoint(a), q = WorldPoint(b);
  const AcGePoint3d low(std::min(p.x, q.x), std::min(p.y, q.y), 0),
      high(std::max(p.x, q.x), std::max(p.y, q.y), 0);
  for (int i = 0; i <= steps; ++i) {
    const AcGeVector3d out = AcGeVector3d(1, 1, 0) * (tread * i);
    AddBox(low - out, high + out, kStairs, kStairColor);
  }
}

// To the left of the way from the first point to the second: the edge and the inside of the rail.
void DrawBalcony() {
  constexpr double kRail = 120;
  ads_point a{}, b{};
  double depth = 1500;
  if (!TwoPoints(a, b) || !AskSize(L"阳台宽度", depth)) return;
  const AcGePoint3d start = WorldPoint(a), end = WorldPoint(b);
  const AcGeVector3d along = (end - start).normal(), out = LeftOf(along);
  for (double in : {0.0, std::min(kRail, depth / 2)}) {
    const AcGePoint3d first = start + along * in, last = end - along * in;
    AddPolyline({first, first + out * (depth - in), last + out * (depth - in), last}, false,
                L"BALCONY", 6);
  }
}

void DrawSheetFrame() {
  constexpr double kBinding = 25, kMargin = 10, kTitleWidth = 180, kTitleHeight = 40;
  ads_point at{};
  const Paper* paper = AskPaper();
  if (!paper || !AskPoint(L"\n图框左下角: ", at)) return;
  const double scale = DocGetPScale();
  const AcGePoint3d low = WorldPoint(at);
  const auto on = [&](double x, double y) {
    return AcGePoint3d(low.x + x * scale, low.y + y * scale, 0);
  };
  const double right = paper->width - kMargin, top = paper->height - kMargin;
  AddBox(low, on(paper->width, paper->height), L"SHEET", 7);
  AddBox(on(kBinding, kMargin), on(right, top), L"SHEET", 7);
  AddBox(on(right - kTitleWidth, kMargin), on(right, kMargin + kTitleHeight), L"SHEET", 7);
}
