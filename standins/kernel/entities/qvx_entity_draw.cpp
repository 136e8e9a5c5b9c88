// How the drawing objects of the family look in plan.
#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>

#include "dbsymtb.h"
#include "kernel/entities/edit_routines.h"
#include "kernel/entities/qvx_entity.h"
#include "kernel/tdbconfig.h"
#include "kernel/tdbfloorrect.h"

namespace {

constexpr double kOnAxis =
    1;  // mm; greatest distance of an opening's middle from the axis of its wall
constexpr short kGlass = 4, kFillColor = 8, kLeaf = 2, kBaseLine = 1, kByLayer = 256;
constexpr short kControlColor = 6;
constexpr double kBoldPen = 40, kControlArm = 120;  // mm at the default scale

AcGePoint3d At(const AcGePoint3d& origin, const AcGeVector3d& along, double x, double y) {
  return {origin.x + along.x * x - along.y * y, origin.y + along.y * x + along.x * y, origin.z};
}

void Rectangle(AcGiWorldDraw* draw, const AcGePoint3d& origin, const AcGeVector3d& along, double x0,
               double y0, double x1, double y1, bool filled) {
  const AcGePoint3d corners[5] = {At(origin, along, x0, y0), At(origin, along, x1, y0),
                                  At(origin, along, x1, y1), At(origin, along, x0, y1),
                                  At(origin, along, x0, y0)};
  if (filled)
    draw->geometry().polygon(4, corners);
  else
    draw->geometry().polyline(5, corners);
}

void Segment(AcGiWorldDraw* draw, const AcGePoint3d& a, const AcGePoint3d& b) {
  const AcGePoint3d ends[2] = {a, b};
  draw->geometry().polyline(2, ends);
}

struct Gap {
  double from, to;  // along the wall's axis
};

// The openings on this wall's axis, sorted by distance from its start.
std::vector<Gap> GapsIn(const QvxDbWall& wall, const AcGeVector3d& along, double length) {
  std::vector<Gap> gaps;
  const auto* space = AcDbBlockTableRecord::cast(wall.ownerId().object());
  if (!space) return gaps;
  for (AcDbObjectId id : space->entities()) {
    const QvxDbOpening* opening = id.isErased() ? nullptr : QvxDbOpening::cast(id.object());
    if (!opening) continue;
    const AcGeVector3d way = opening->start - wall.start;
    const double at = way.x * along.x + way.y * along.y,
                 beside = std::fabs(way.y * along.x - way.x * along.y);
    if (beside > kOnAxis || at < 0 || at > length) continue;
    gaps.push_back({at - opening->size / 2, at + opening->size / 2});
  }
  std::sort(gaps.begin(), gaps.end(), [](const Gap& a, const Gap& b) { return a.from < b.from; });
  return gaps;
}

}  // namespace

namespace {

QvxTextPlace OfMenu(QvxTextMenu menu, QvxTextPlace place) {
  place.menu = menu;
  return place;
}

// The current display switches of walls and columns.
struct CutLook {
  bool filled = true, bold = false, base = false;
  double pen = kBoldPen;
};

CutLook LookIn(AcDbDatabase* database, double scaleFactor) {
  TDbConfig* config = GetDwgGlobal(AcDb::kForRead, database);
  if (!config) return {};
  const CutLook look = {config->SolidFill() == 1, config->BoldLine() == 1, config->WallBase() == 1,
                        kBoldPen * scaleFactor};
  config->close();
  return look;
}

// One piece of a wall: the filling when it is filled, and the outline when it is not filled or
// bold. A bold outline is inside the piece, so that neighbours do not overlap.
void Piece(AcGiWorldDraw* draw, const AcGePoint3d& origin, const AcGeVector3d& along, double x0,
           double y0, double x1, double y1, const CutLook& look) {
  if (look.filled) {
    draw->subEntityTraits().setColor(kFillColor);
    Rectangle(draw, origin, along, x0, y0, x1, y1, true);
    draw->subEntityTraits().setColor(kByLayer);
  }
  if (!look.bold) {
    if (!look.filled) Rectangle(draw, origin, along, x0, y0, x1, y1, false);
    return;
  }
  const double pen = std::min({look.pen, (x1 - x0) / 2, (y1 - y0) / 2});
  Rectangle(draw, origin, along, x0, y0, x1, y0 + pen, true);
  Rectangle(draw, origin, along, x0, y1 - pen, x1, y1, true);
  Rectangle(draw, origin, along, x0, y0 + pen, x0 + pen, y1 - pen, true);
  Rectangle(draw, origin, along, x1 - pen, y0 + pen, x1, y1 - pen, true);
}

}  // namespace

// The pieces between the openings. Both ends are longer by half the width, which closes corners
// without searching for neighbours.
bool QvxDbWall::subWorldDraw(AcGiWorldDraw* draw) const {
  const double length = start.distanceTo(end), half = width / 2;
  if (length <= 0) return false;
  const AcGeVector3d along = (end - start).normal();
  const CutLook look = LookIn(database(), ScaleFactor());
  double at = -half;
  for (const Gap& gap : GapsIn(*this, along, length)) {
    if (gap.from > at) Piece(draw, start, along, at, -half, gap.from, half, look);
    at = std::max(at, gap.to);
  }
  if (length + half > at) Piece(draw, start, along, at, -half, length + half, half, look);
  if (look.base) {
    draw->subEntityTraits().setColor(kBaseLine);
    Segment(draw, start, end);
  }
  DrawControl(draw);
  return true;
}

bool QvxDbOpening::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGeVector3d along(std::cos(angle), std::sin(angle), 0);
  const double half = size / 2, deep = width / 2;
  for (double x : {-half, half})
    Segment(draw, At(start, along, x, -deep), At(start, along, x, deep));
  DrawTexts(draw, TextPlaces());
  DrawControl(draw);
  if (kind == 1) {
    draw->subEntityTraits().setColor(kGlass);
    for (double y : {-deep, -deep / 3, deep / 3, deep})
      Segment(draw, At(start, along, -half, y), At(start, along, half, y));
    return true;
  }
  const double up = flags & 1 ? -1 : 1, side = flags & 2 ? -1 : 1;
  const AcGePoint3d hinge = At(start, along, -half * side, 0);
  const AcGePoint3d tip = At(start, along, -half * side, size * up);
  draw->subEntityTraits().setColor(kLeaf);
  Segment(draw, hinge, tip);
  const double closed = angle + (side > 0 ? 0 : std::numbers::pi);
  const double from = side * up > 0 ? closed : closed - std::numbers::pi / 2;
  draw->geometry().circularArc(hinge, size, AcGeVector3d::kZAxis,
                               {std::cos(from), std::sin(from), 0}, std::numbers::pi / 2);
  return true;
}

// The model number is one of the texts while the drawing shows it.
std::vector<QvxTextPlace> QvxDbOpening::TextPlaces() const {
  if (!ShowsModelNumbers()) return {};
  const AcGeVector3d up(-std::sin(angle), std::cos(angle), 0);
  const double height = 250 * ScaleFactor();
  return {OfMenu(kOpeningNumber,
                 QvxTextPlace::Around(start + up * (width / 2 + height), height, label))};
}

bool QvxDbColumn::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGeVector3d along(std::cos(angle), std::sin(angle), 0);
  Piece(draw, start, along, -width / 2, -size / 2, width / 2, size / 2,
        LookIn(database(), ScaleFactor()));
  return true;
}

bool QvxDbAxisNumber::subWorldDraw(AcGiWorldDraw* draw) const {
  const double radius = width * ScaleFactor();
  draw->geometry().circle(start, radius, AcGeVector3d::kZAxis);
  DrawTexts(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> QvxDbAxisNumber::TextPlaces() const {
  return {OfMenu(kAxisName, QvxTextPlace::Around(start, width * ScaleFactor(), label))};
}

bool QvxDbText::subWorldDraw(AcGiWorldDraw* draw) const {
  DrawTexts(draw, TextPlaces());
  return true;
}

std::vector<QvxTextPlace> QvxDbText::TextPlaces() const {
  QvxTextPlace place = {label, start, width * ScaleFactor(), angle};
  place.menu = kAnnotation;
  place.multiLine = IsMultiLine();
  place.wrap = size * ScaleFactor();
  return {place};
}

QvxDbText::EditFunction QvxDbText::GetEditFunction() const { return EditTexts; }

bool QvxDbStair::subWorldDraw(AcGiWorldDraw* draw) const {
  const AcGeVector3d along(std::cos(angle), std::sin(angle), 0);
  const int steps = std::clamp(kind, 1, 100);
  Rectangle(draw, start, along, 0, 0, width, size, false);
  for (int i = 1; i < steps; ++i)
    Segment(draw, At(start, along, 0, size * i / steps), At(start, along, width, size * i / steps));
  Segment(draw, At(start, along, width / 2, 0), At(start, along, width / 2, size));
  Segment(draw, At(start, along, width / 2, size), At(start, along, width / 2 - 100, size - 250));
  Segment(draw, At(start, along, width / 2, size), At(start, along, width / 2 + 100, size - 250));
  return true;
}

bool QvxDbSpace::subWorldDraw(AcGiWorldDraw* draw) const {
  if (outline.size() < 3) return false;
  const AcGePoint3d middle = Middle();
  const double f = ScaleFactor();
  draw->subEntityTraits().setColor(3);
  DrawTexts(draw, TextPlaces());
  wchar_t area[40];
  std::swprintf(area, 40, L"%.2f m²", Area() / 1e6);
  QvxTextPlace::Around({middle.x, middle.y - 220 * f, 0}, 240 * f, area).Draw(draw);
  return true;
}

std::vector<QvxTextPlace> QvxDbSpace::TextPlaces() const {
  if (outline.size() < 3) return {};
  const AcGePoint3d middle = Middle();
  const double f = ScaleFactor();
  return {QvxTextPlace::Around({middle.x, middle.y + 220 * f, 0}, 300 * f, label)};
}

std::vector<QvxTextPlace> TDbFloorRect::TextPlaces() const {
  const double f = ScaleFactor();
  return {QvxTextPlace::Around({(start.x + end.x) / 2, std::min(start.y, end.y) - 600 * f, 0},
                               500 * f, label)};
}

bool TDbFloorRect::subWorldDraw(AcGiWorldDraw* draw) const {
  Rectangle(draw, start, AcGeVector3d::kXAxis, 0, 0, end.x - start.x, end.y - start.y, false);
  DrawTexts(draw, TextPlaces());
  return true;
}

void QvxDbEntity::DrawControl(AcGiWorldDraw* draw) const {
  if (!control) return;
  const double arm = kControlArm * ScaleFactor();
  draw->subEntityTraits().setColor(kControlColor);
  for (const AcGePoint3d& at : {start, end}) {
    Segment(draw, at + AcGeVector3d(-arm, -arm, 0), at + AcGeVector3d(arm, arm, 0));
    Segment(draw, at + AcGeVector3d(-arm, arm, 0), at + AcGeVector3d(arm, -arm, 0));
  }
  draw->subEntityTraits().setColor(kByLayer);
}
