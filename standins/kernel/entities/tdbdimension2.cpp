#include "kernel/entities/tdbdimension2.h"

#include <cmath>
#include <cwchar>
#include <numbers>

#include "kernel/entities/measured_text.h"

ACRX_DXF_DEFINE_MEMBERS(TDbDimension2, QvxDbEntity, 0, 0, 0, QVX_DIMENSION2, qvx_kernal)

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kTick = 90, kOver = 150, kTextGap = 80;  // at the default scale

AcGePoint3d At(const AcGePoint3d& origin, const AcGeVector3d& along, double x, double y) {
  return {origin.x + along.x * x - along.y * y, origin.y + along.y * x + along.x * y, origin.z};
}

void Segment(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  const AcGePoint3d ends[2] = {a, b};
  draw->geometry().polyline(2, ends);
}

}  // namespace

std::wstring TDbDimension2::MeasuredText() const {
  wchar_t text[400];
  std::swprintf(text, 400, L"%.0f",
                IsAngular() ? std::fabs(angle) / kDegree : start.distanceTo(end));
  return IsAngular() ? std::wstring(text) + L"°" : text;
}

double TDbDimension2::TextWidth() const {
  QvxTextPlace place;
  place.text = Text();
  place.height = TextHeight();
  return place.TextWidth();
}

double TDbDimension2::MeasuredLength() const {
  return IsAngular() ? std::fabs(width * angle) : start.distanceTo(end);
}

void TDbDimension2::AdjustDim(bool aside, int rows, int gap) {
  flags &= ~(kTextAside | kTextAbove);
  if (TextWidth() + gap * TextHeight() / 2 <= MeasuredLength()) return;
  if (aside)
    flags |= kTextAside;
  else if (rows > 0)
    flags |= kTextAbove;
}

bool TDbDimension2::subWorldDraw(AcGiWorldDraw* draw) const {
  if (!(start.distanceTo(end) > 0)) return false;
  IsAngular() ? DrawAngular(draw) : DrawLinear(draw);
  DrawTexts(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> TDbDimension2::TextPlaces() const {
  if (!(start.distanceTo(end) > 0)) return {};
  return {IsAngular() ? AngularText() : LinearText()};
}

void TDbDimension2::ChangeText(int index, const std::wstring& text) {
  if (index == 0) label = OwnTextOf(text, MeasuredText());
}

QvxTextPlace TDbDimension2::PlaceText(const AcGePoint3d& middle, const AcGePoint3d& beyond,
                                      const AcGeVector3d& along) const {
  const double f = ScaleFactor();
  const double up = kTextGap * f + (flags & kTextAbove ? TextHeight() * 1.4 : 0);
  QvxTextPlace place;
  place.text = Text();
  place.at = flags & kTextAside ? At(beyond, along, kTextGap * f, up)
                                : At(middle, along, -TextWidth() / 2, up);
  place.height = TextHeight();
  place.angle = std::atan2(along.y, along.x);
  place.menu = kMeasuredText;
  return place;
}

QvxTextPlace TDbDimension2::LinearText() const {
  const double length = start.distanceTo(end);
  const AcGeVector3d along = (end - start).normal();
  return PlaceText(At(start, along, length / 2, width), At(start, along, length, width), along);
}

QvxTextPlace TDbDimension2::AngularText() const {
  const AcGeVector3d first = (end - start).normal();
  const double from = std::atan2(first.y, first.x), half = from + angle / 2, last = from + angle;
  const AcGeVector3d along(std::sin(half), -std::cos(half), 0);
  return PlaceText(At(start, {std::cos(half), std::sin(half), 0}, width, 0),
                   At(start, {std::cos(last), std::sin(last), 0}, width, 0), along);
}

void TDbDimension2::DrawLinear(AcGiWorldDraw* draw) const {
  const double length = start.distanceTo(end), f = ScaleFactor(), y = width;
  const AcGeVector3d along = (end - start).normal();
  const double over = y < 0 ? -kOver * f : kOver * f, tick = kTick * f;
  Segment(draw, start, At(start, along, 0, y + over));
  Segment(draw, end, At(start, along, length, y + over));
  Segment(draw, At(start, along, 0, y), At(start, along, length, y));
  for (double x : {0.0, length})
    Segment(draw, At(start, along, x - tick, y - tick), At(start, along, x + tick, y + tick));
}

// A negative radius, which a large change of scale can give, is on the other side.
void TDbDimension2::DrawAngular(AcGiWorldDraw* draw) const {
  const double f = ScaleFactor(), over = width < 0 ? -kOver * f : kOver * f, tick = kTick * f;
  const AcGeVector3d first = (end - start).normal();
  const double from = std::atan2(first.y, first.x);
  for (const double at : {from, from + angle}) {
    const AcGeVector3d along(std::cos(at), std::sin(at), 0);
    Segment(draw, start, At(start, along, width + over, 0));
    Segment(draw, At(start, along, width - tick, -tick), At(start, along, width + tick, tick));
  }
  const double begin = width < 0 ? from + std::numbers::pi : from;
  draw->geometry().circularArc(start, std::fabs(width), AcGeVector3d::kZAxis,
                               {std::cos(begin), std::sin(begin), 0}, angle);
}
