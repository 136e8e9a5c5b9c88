#include "plane_shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kFlat = 1e-9;  // twice the area for the square of the length: on one line
constexpr double kChord = kPi / 18;

double Cross(const AcGeVector3d& a, const AcGeVector3d& b) { return a.x * b.y - a.y * b.x; }

double AngleOf(const AcGeVector3d& v) { return std::atan2(v.y, v.x); }

// 0 to a full turn.
double Turn(double angle) {
  const double rest = std::fmod(angle, 2 * kPi);
  return rest < 0 ? rest + 2 * kPi : rest;
}

}  // namespace

AcGePoint3d OnCircle(const AcGePoint3d& center, double radius, double angle) {
  return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle), center.z};
}

AcGeVector3d LeftOf(const AcGeVector3d& along) { return {-along.y, along.x, 0}; }

double DotOf(const AcGeVector3d& a, const AcGeVector3d& b) { return a.x * b.x + a.y * b.y; }

std::optional<Arc> ArcThrough(const AcGePoint3d& start, const AcGePoint3d& middle,
                              const AcGePoint3d& end) {
  const AcGeVector3d a = middle - start, b = end - start;
  const double twice = 2 * Cross(a, b), aa = DotOf(a, a), bb = DotOf(b, b);
  if (std::fabs(twice) <= kFlat * (aa + bb)) return std::nullopt;
  Arc arc;
  arc.center = {start.x + (b.y * aa - a.y * bb) / twice, start.y + (a.x * bb - b.x * aa) / twice,
                start.z};
  arc.radius = arc.center.distanceTo(start);
  arc.from = AngleOf(start - arc.center);
  arc.sweep = Turn(AngleOf(end - arc.center) - arc.from);
  if (twice < 0) arc.sweep -= 2 * kPi;
  return arc;
}

std::vector<AcGePoint3d> ChordsOf(const Arc& arc) {
  const int count = std::max(1, static_cast<int>(std::ceil(std::fabs(arc.sweep) / kChord - kFlat)));
  std::vector<AcGePoint3d> points;
  for (int i = 0; i <= count; ++i)
    points.push_back(OnCircle(arc.center, arc.radius, arc.from + arc.sweep * i / count));
  return points;
}

std::optional<double> Crossing(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& c,
                               const AcGePoint3d& d) {
  const AcGeVector3d first = b - a, second = d - c, between = c - a;
  const double across = Cross(first, second);
  if (std::fabs(across) <= kFlat * first.length() * second.length()) return std::nullopt;
  const double t = Cross(between, second) / across, u = Cross(between, first) / across;
  if (t < -kFlat || t > 1 + kFlat || u < -kFlat || u > 1 + kFlat) return std::nullopt;
  return t;
}

// As in writing numbers: what follows the last digit or letter of its kind begins again, and the
// one before it counts on.
std::wstring NextAxisName(const std::wstring& name) {
  constexpr wchar_t kDigits[] = L"0123456789", kCapitals[] = L"ABCDEFGHJKLMNPQRSTUVWXY";
  const bool isNumber = !name.empty() && name.back() >= L'0' && name.back() <= L'9';
  const std::wstring signs = isNumber ? kDigits : kCapitals;
  std::wstring next = name;
  for (std::size_t i = next.size(); i-- > 0;) {
    const std::size_t at = signs.find(next[i]);
    if (at == std::wstring::npos) return next.insert(i + 1, 1, signs[isNumber ? 1 : 0]);
    if (at + 1 < signs.size()) {
      next[i] = signs[at + 1];
      return next;
    }
    next[i] = signs[0];
  }
  return next.insert(0, 1, signs[isNumber ? 1 : 0]);
}
