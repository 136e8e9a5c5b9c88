// Drawings as plain shapes; see the header.
#include "devhost/core/view/scene.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/base/text_codes.h"

namespace devhost {
namespace {

constexpr int kDeepestBlock = 24;  // references inside references; a block may name itself
constexpr std::size_t kMostShapes =
    2000000;  // of one drawing: small blocks in large arrays multiply

struct LayerLook {
  int color = 7;
  bool shown = true;
  bool dashed = false;
};

using LayerLooks = std::map<std::wstring, LayerLook>;

LayerLooks LooksOf(AcDbDatabase& database) {
  LayerLooks looks;
  const auto* table = AcDbLayerTable::cast(database.layerTableId().object());
  for (AcDbObjectId id : table->records()) {
    const auto* layer = AcDbLayerTableRecord::cast(id.object());
    if (!layer) continue;
    const std::wstring type = UpperCase(layer->linetype());
    looks[UpperCase(layer->getName())] = {layer->colorIndex(),
                                          !layer->isOff() && !layer->isFrozen(),
                                          type != L"CONTINUOUS" && !type.empty()};
  }
  return looks;
}

// Receives what entities draw and keeps it as shapes, through the transforms of the blocks around.
class Collector : public AcGiWorldDraw, AcGiWorldGeometry, AcGiSubEntityTraits {
 public:
  Collector(const LayerLooks& looks, double pixelsPerUnit, std::vector<Shape>& out)
      : m_looks(looks), m_pixels(pixelsPerUnit > 0 ? pixelsPerUnit : 1), m_out(out) {}

  void DrawTop(AcDbEntity& entity) {
    m_entity = &entity;
    Draw(entity);
  }

 private:
  AcGiSubEntityTraits& subEntityTraits() override { return *this; }
  AcGiWorldGeometry& geometry() override { return *this; }

  struct Frame {
    int color;
    bool dashed, filled;
  };

  void Draw(const AcDbEntity& entity) {
    const auto at = m_looks.find(UpperCase(entity.layer()));
    const LayerLook look = at == m_looks.end() ? LayerLook() : at->second;
    if (!look.shown) return;
    const Frame before = m_frame;
    const int own = entity.colorIndex();
    const bool onZero = m_depth > 0 && !std::wcscmp(entity.layer(), L"0");
    // Layer 0 and "by block" inside a block take the look of the reference.
    m_layerColor = onZero ? before.color : look.color;
    m_blockColor = before.color;
    m_frame.color = own == 256 ? m_layerColor : own == 0 ? before.color : own;
    m_frame.dashed = onZero ? before.dashed : look.dashed;
    m_frame.filled = false;
    entity.subWorldDraw(this);
    m_frame = before;
  }

  void setColor(short index) override {
    m_frame.color = index == 256 ? m_layerColor : index == 0 ? m_blockColor : index;
  }
  void setFilled(bool filled) override { m_frame.filled = filled; }

  bool Full() const { return m_out.size() >= kMostShapes; }

  bool Add(Shape::Kind kind, unsigned count, const AcGePoint3d* points) {
    if (Full() || count == 0) return false;
    Shape shape;
    shape.kind = kind;
    shape.color = m_frame.color;
    shape.dashed = m_frame.dashed;
    shape.entity = m_entity;
    shape.points.reserve(count);
    for (unsigned i = 0; i < count; ++i) shape.points.push_back(Matrix() * points[i]);
    m_out.push_back(std::move(shape));
    return true;
  }
  bool polyline(unsigned count, const AcGePoint3d* points) override {
    return Add(Shape::Kind::Polyline, count, points);
  }
  bool polygon(unsigned count, const AcGePoint3d* points) override {
    return Add(Shape::Kind::Polygon, count, points);
  }
  bool circle(const AcGePoint3d& center, double radius, const AcGeVector3d& normal) override {
    return circularArc(center, radius, normal, AcGeVector3d::kXAxis, 2 * std::numbers::pi);
  }
  bool circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d&,
                   const AcGeVector3d& start, double sweep) override {
    if (!(radius > 0) || !std::isfinite(radius) || !std::isfinite(sweep)) return false;
    const double seen = std::min(radius * Matrix().scale() * m_pixels, 1e6);
    const int whole = std::clamp(static_cast<int>(std::sqrt(seen) * 5), 12, 360);
    const int steps =
        std::max(2, static_cast<int>(whole * std::fabs(sweep) / (2 * std::numbers::pi)) + 1);
    const double from = std::atan2(start.y, start.x);
    std::vector<AcGePoint3d> points;
    for (int i = 0; i <= steps; ++i) {
      const double t = from + sweep * i / steps;
      points.emplace_back(center.x + radius * std::cos(t), center.y + radius * std::sin(t), 0);
    }
    return polyline(static_cast<unsigned>(points.size()), points.data());
  }
  bool text(const AcGePoint3d& position, const AcGeVector3d&, const AcGeVector3d& direction,
            double height, double width, double, const ACHAR* text) override {
    if (Full() || !(height > 0)) return false;
    Shape shape;
    shape.kind = Shape::Kind::Text;
    shape.color = m_frame.color;
    shape.entity = m_entity;
    shape.points = {Matrix() * position};
    shape.text = text;
    shape.height = height * Matrix().scale();
    const AcGeVector3d along = Matrix() * direction;
    shape.rotation = std::atan2(along.y, along.x);
    shape.widthFactor = width;
    m_out.push_back(std::move(shape));
    return true;
  }
  bool pushModelTransform(const AcGeMatrix3d& matrix) override {
    m_matrices.push_back(Matrix() * matrix);
    return true;
  }
  bool popModelTransform() override {
    if (m_matrices.size() > 1) m_matrices.pop_back();
    return true;
  }
  bool draw(const AcDbEntity* part) override {
    if (!part || Full()) return false;
    if (m_depth >= kDeepestBlock) return false;
    ++m_depth;
    Draw(*part);
    --m_depth;
    return true;
  }
  const AcGeMatrix3d& Matrix() const { return m_matrices.back(); }

  const LayerLooks& m_looks;
  double m_pixels;
  std::vector<Shape>& m_out;
  AcDbObject* m_entity = nullptr;
  int m_depth = 0, m_layerColor = 7, m_blockColor = 7;
  Frame m_frame{7, false, false};
  std::vector<AcGeMatrix3d> m_matrices{AcGeMatrix3d()};
};

std::vector<AcDbEntity*> EntitiesOf(AcDbDatabase& database) {
  std::vector<AcDbEntity*> entities;
  const auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  if (!space) return entities;
  for (AcDbObjectId id : space->entities())
    if (!id.isErased())
      if (AcDbEntity* entity = AcDbEntity::cast(id.object())) entities.push_back(entity);
  return entities;
}

double DistanceToSegment(const AcGePoint3d& p, const AcGePoint3d& a, const AcGePoint3d& b) {
  const double dx = b.x - a.x, dy = b.y - a.y, length = dx * dx + dy * dy;
  const double t =
      length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0;
  return std::hypot(p.x - (a.x + dx * t), p.y - (a.y + dy * t));
}

// The four corners that a text fills, so that it can be hit and boxed like a polygon.
std::vector<AcGePoint3d> TextCorners(const Shape& shape) {
  const double length = TextLength(shape.text) * shape.height * shape.widthFactor;
  const AcGeVector3d along(std::cos(shape.rotation), std::sin(shape.rotation), 0),
      up(-along.y, along.x, 0);
  const AcGePoint3d at = shape.points[0];
  return {at, at + along * length, at + along * length + up * shape.height, at + up * shape.height,
          at};
}

bool InsidePolygon(const std::vector<AcGePoint3d>& corners, const AcGePoint3d& p) {
  bool inside = false;
  for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++)
    if ((corners[i].y > p.y) != (corners[j].y > p.y) &&
        p.x < (corners[j].x - corners[i].x) * (p.y - corners[i].y) / (corners[j].y - corners[i].y) +
                  corners[i].x)
      inside = !inside;
  return inside;
}

std::vector<AcGePoint3d> OutlineOf(const Shape& shape) {
  if (shape.kind == Shape::Kind::Text) return TextCorners(shape);
  std::vector<AcGePoint3d> points = shape.points;
  if (shape.kind == Shape::Kind::Polygon) points.push_back(points.front());
  return points;
}

double DistanceTo(const Shape& shape, const AcGePoint3d& p) {
  const std::vector<AcGePoint3d> outline = OutlineOf(shape);
  if (shape.kind != Shape::Kind::Polyline && InsidePolygon(outline, p)) return 0;
  double best = outline.size() == 1 ? p.distanceTo(outline[0]) : 1e300;
  for (std::size_t i = 0; i + 1 < outline.size(); ++i)
    best = std::min(best, DistanceToSegment(p, outline[i], outline[i + 1]));
  return best;
}

// Whether a segment comes into a box, by clipping it against the four sides.
bool SegmentTouches(AcGePoint3d a, AcGePoint3d b, double x0, double y0, double x1, double y1) {
  double t0 = 0, t1 = 1;
  const double dx = b.x - a.x, dy = b.y - a.y;
  auto clip = [&](double p, double q) {
    if (p == 0) return q >= 0;
    const double t = q / p;
    if (p < 0)
      t0 = std::max(t0, t);
    else
      t1 = std::min(t1, t);
    return t0 <= t1;
  };
  return clip(-dx, a.x - x0) && clip(dx, x1 - a.x) && clip(-dy, a.y - y0) && clip(dy, y1 - a.y);
}

}  // namespace

std::vector<Shape> BuildScene(AcDbDatabase& database, double pixelsPerUnit) {
  std::vector<Shape> shapes;
  const LayerLooks looks = LooksOf(database);
  Collector collector(looks, pixelsPerUnit, shapes);
  for (AcDbEntity* entity : EntitiesOf(database)) collector.DrawTop(*entity);
  return shapes;
}

std::vector<Shape> ShapesOf(AcDbEntity& entity, double pixelsPerUnit) {
  std::vector<Shape> shapes;
  const LayerLooks looks = entity.database() ? LooksOf(*entity.database()) : LayerLooks();
  Collector(looks, pixelsPerUnit, shapes).DrawTop(entity);
  return shapes;
}

AcDbExtents ExtentsOf(AcDbDatabase& database) {
  AcDbExtents extents;
  for (const Shape& shape : BuildScene(database, 1e-3))
    for (const AcGePoint3d& p : OutlineOf(shape)) extents.addPoint(p);
  return extents;
}

AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach) {
  AcDbObject* best = nullptr;
  double nearest = reach;
  for (const Shape& shape : BuildScene(database, 1 / std::max(reach, 1e-9))) {
    const double distance = DistanceTo(shape, at);
    if (distance > nearest) continue;  // of two that are equally near the upper one is taken
    nearest = distance;
    best = shape.entity;
  }
  return AcDbEntity::cast(best);
}

std::vector<AcDbEntity*> EntitiesIn(AcDbDatabase& database, const AcGePoint3d& a,
                                    const AcGePoint3d& b, bool crossing) {
  const double x0 = std::min(a.x, b.x), x1 = std::max(a.x, b.x), y0 = std::min(a.y, b.y),
               y1 = std::max(a.y, b.y);
  std::vector<AcDbEntity*> found;
  AcDbObject* current = nullptr;
  bool inside = false, touched = false;
  auto finish = [&] {
    if (current && (crossing ? touched : inside)) found.push_back(AcDbEntity::cast(current));
  };
  for (const Shape& shape : BuildScene(database, 1e-3)) {
    if (shape.entity != current) {
      finish();
      current = shape.entity;
      inside = true;
      touched = false;
    }
    const std::vector<AcGePoint3d> outline = OutlineOf(shape);
    for (const AcGePoint3d& p : outline) inside &= p.x >= x0 && p.x <= x1 && p.y >= y0 && p.y <= y1;
    for (std::size_t i = 0; i + 1 < outline.size() && !touched; ++i)
      touched = SegmentTouches(outline[i], outline[i + 1], x0, y0, x1, y1);
  }
  finish();
  return found;
}

bool PointOn(AcDbEntity& entity, AcGePoint3d* at) {
  const std::vector<Shape> shapes = ShapesOf(entity, 1);
  if (shapes.empty()) return false;
  const std::vector<AcGePoint3d> outline = OutlineOf(shapes[0]);
  const AcGePoint3d a = outline[0], b = outline.size() > 1 ? outline[1] : outline[0];
  *at = {a.x + (b.x - a.x) * 0.4, a.y + (b.y - a.y) * 0.4,
         0};  // not the middle: others cross there
  if (shapes[0].kind == Shape::Kind::Text)
    *at = {(outline[0].x + outline[2].x) / 2, (outline[0].y + outline[2].y) / 2, 0};
  return true;
}

}  // namespace devhost
