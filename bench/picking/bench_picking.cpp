// Measures one hit test of the development host over 1,000, 10,000 and 100,000 ordinary objects:
// what a pause of the pointer costs. Goals: at most 5 ms with 100,000, and at most three times the
// time with 1,000. Beside it, in the same run, the hit test that draws every object, the first hit
// test of a drawing, which measures all objects, and one after a change of one object.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/db_classes.h"
#include "devhost/core/view/scene.h"
#include "devhost/core/view/shape_geometry.h"

namespace {

constexpr double kGoal = 5;        // ms
constexpr double kGoalRatio = 3;   // of 100,000 objects to 1,000
constexpr double kSpacing = 1000;  // drawing units; about one object in each square of this side
constexpr double kReach = 40;
constexpr int kPlaces = 301, kTries = 5;

double Now() {
  return std::chrono::duration<double, std::milli>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

double Timed(const std::function<void()>& work) {
  const double begin = Now();
  work();
  return Now() - begin;
}

// Lines, arcs, circles, polylines and texts, on twenty layers, all over a square.
void Fill(AcDbDatabase& database, int count) {
  std::mt19937 random(7);
  auto* table = AcDbLayerTable::cast(database.layerTableId().object());
  for (int i = 0; i < 20; ++i) {
    auto* layer = new AcDbLayerTableRecord;
    layer->setName((L"A-LAYER-" + std::to_wstring(i)).c_str());
    table->add(layer);
  }
  auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  const double side = std::sqrt(static_cast<double>(count)) * kSpacing;
  std::uniform_real_distribution<double> place(0, side), size(50, 3000);
  for (int i = 0; i < count; ++i) {
    const AcGePoint3d at(place(random), place(random), 0);
    const double s = size(random);
    AcDbEntity* entity = nullptr;
    switch (random() % 5) {
      case 0:
        entity = new AcDbCircle(at, s / 4);
        break;
      case 1:
        entity = new AcDbArc(at, s / 2, 0, 2);
        break;
      case 2:
        entity = new AcDbText(at, L"C-1 300x600", s / 10);
        break;
      case 3: {
        auto* polyline = new AcDbPolyline;
        for (unsigned k = 0; k < 4; ++k)
          polyline->addVertexAt(k, {at.x + s * (k % 2), at.y + s * (k / 2), 0});
        entity = polyline;
        break;
      }
      default:
        entity = new AcDbLine(at, {at.x + s, at.y + s / 3, 0});
    }
    entity->setLayer((L"A-LAYER-" + std::to_wstring(random() % 20)).c_str());
    space->appendAcDbEntity(entity);
  }
}

AcDbEntity* EntityAtByDrawing(AcDbDatabase& database, const AcGePoint3d& at) {
  AcDbObject* best = nullptr;
  double nearest = kReach;
  for (const devhost::Shape& shape : devhost::BuildScene(database, 1 / kReach)) {
    const double distance = devhost::DistanceTo(shape, at);
    if (distance > nearest) continue;
    nearest = distance;
    best = shape.entity;
  }
  return AcDbEntity::cast(best);
}

struct Row {
  double first, median, longest, afterChange, byDrawing;
};

Row Measure(int count) {
  AcDbDatabase database;
  Fill(database, count);
  const double side = std::sqrt(static_cast<double>(count)) * kSpacing;
  std::mt19937 random(3);
  std::uniform_real_distribution<double> place(0, side);
  Row row{};
  row.first = Timed([&] { devhost::EntityAt(database, {0, 0, 0}, kReach); });
  std::vector<double> times;
  int found = 0;
  for (int i = 0; i < kPlaces; ++i) {
    const AcGePoint3d at(place(random), place(random), 0);
    double best = std::numeric_limits<double>::max();  // other programs only add to the time
    for (int k = 0; k < kTries; ++k)
      best = std::min(best,
                      Timed([&] { found += devhost::EntityAt(database, at, kReach) != nullptr; }));
    times.push_back(best);
  }
  if (found == 0) std::printf("no place has an object; the figures say nothing\n");
  std::sort(times.begin(), times.end());
  row.median = times[times.size() / 2];
  row.longest = times.back();
  auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  AcDbEntity* some = AcDbEntity::cast(space->entities()[0].object());
  some->transformBy(AcGeMatrix3d::translation({10, 0, 0}));
  row.afterChange = Timed([&] { devhost::EntityAt(database, {0, 0, 0}, kReach); });
  row.byDrawing = std::numeric_limits<double>::max();
  for (int i = 0; i < 3; ++i) {
    const AcGePoint3d at(place(random), place(random), 0);
    AcDbEntity* drawn = nullptr;
    row.byDrawing =
        std::min(row.byDrawing, Timed([&] { drawn = EntityAtByDrawing(database, at); }));
    if (devhost::EntityAt(database, at, kReach) != drawn) {
      std::printf("the index finds another object than drawing everything does\n");
      row.longest = std::numeric_limits<double>::max();
    }
  }
  return row;
}

}  // namespace

int main() {
  devhost::RegisterDatabaseClasses();
  std::printf("hit test, ms     median    longest   after a change   first     drawing all\n");
  std::vector<Row> rows;
  for (const int count : {1000, 10000, 100000}) {
    rows.push_back(Measure(count));
    const Row& r = rows.back();
    std::printf("%7d        %8.4f   %8.4f   %8.4f      %8.2f     %8.2f\n", count, r.median,
                r.longest, r.afterChange, r.first, r.byDrawing);
  }
  const double ratio = rows[2].median / rows[0].median;
  const bool good = rows[2].longest <= kGoal && ratio <= kGoalRatio;
  std::printf(
      "longest of 100,000: %.3f ms, goal %.0f ms; median against 1,000: %.2f, goal %.0f: %s\n",
      rows[2].longest, kGoal, ratio, kGoalRatio, good ? "met" : "MISSED");
  return good ? 0 : 1;
}
