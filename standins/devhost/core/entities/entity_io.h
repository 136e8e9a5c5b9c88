// Helpers of the entity classes: reading groups into members, sweeps of arcs, bulges of polylines.
#pragma once

#include <cmath>
#include <functional>
#include <initializer_list>
#include <numbers>
#include <string>
#include <variant>

#include "dbmain.h"

namespace devhost {

constexpr double kDegree = std::numbers::pi / 180;

inline AcGePoint3d PointOfItem(const resbuf& item) {
  return {item.resval.rpoint[0], item.resval.rpoint[1], item.resval.rpoint[2]};
}

// The counter-clockwise angle from `from` to `to`, above 0 and at most a full turn.
inline double Sweep(double from, double to) {
  double sweep = std::fmod(to - from, 2 * std::numbers::pi);
  if (!std::isfinite(sweep)) return 0;
  if (sweep <= 0) sweep += 2 * std::numbers::pi;
  return sweep;
}

inline bool Mirrors(const AcGeMatrix3d& m) { return m.a * m.d < m.b * m.c; }

// Calls `each` for every item of a filer.
template <class F>
Acad::ErrorStatus ForEachItem(AcDbDxfFiler* filer, F each) {
  resbuf item{};
  while (filer->readItem(&item) == Acad::eOk) each(item);
  return Acad::eOk;
}

// The member that takes the value of a group. Reals are multiplied by the factor.
struct Field {
  short code;
  std::variant<std::wstring*, int*, double*, AcGePoint3d*, AcGeVector3d*> target;
  double factor = 1;
};

// Reads every item of a filer. Groups without a field go to `other`.
Acad::ErrorStatus ReadFields(AcDbDxfFiler* filer, std::initializer_list<Field> fields,
                             const std::function<void(const resbuf&)>& other = nullptr);

// The points of a polyline segment with a bulge, without its first point.
template <class Add>
void AddBulge(const AcGePoint3d& a, const AcGePoint3d& b, double bulge, Add add) {
  if (std::fabs(bulge) < 1e-9 || !std::isfinite(bulge)) return add(b);
  const double angle = 4 * std::atan(bulge);
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double f = (1 / bulge - bulge) / 4;
  const double cx = (a.x + b.x) / 2 - dy * f, cy = (a.y + b.y) / 2 + dx * f;
  const double r = std::hypot(a.x - cx, a.y - cy), from = std::atan2(a.y - cy, a.x - cx);
  const int steps = std::max(2, static_cast<int>(std::fabs(angle) / (6 * kDegree)) + 1);
  for (int i = 1; i < steps; ++i) {
    const double t = from + angle * i / steps;
    add(AcGePoint3d(cx + r * std::cos(t), cy + r * std::sin(t), a.z));
  }
  add(b);
}

}  // namespace devhost
