// Drawings as shapes; see the header.
#include "devhost/core/view/scene.h"

#include <algorithm>

#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/view/entity_index.h"
#include "devhost/core/view/shape_collector.h"
#include "devhost/core/view/shape_geometry.h"

namespace devhost {
namespace {

std::vector<AcDbEntity*> EntitiesOf(AcDbDatabase& database) {
  std::vector<AcDbEntity*> entities;
  const auto* space = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  if (!space) return entities;
  for (AcDbObjectId id : space->entities())
    if (!id.isErased())
      if (AcDbEntity* entity = AcDbEntity::cast(id.object())) entities.push_back(entity);
  return entities;
}

constexpr double kSelectionPixels = 1e-3;  // coarse arcs, for boxes and fences

// The entities that may draw something in a box, and their shapes on visible layers.
class CandidateShapes {
 public:
  CandidateShapes(AcDbDatabase& database, const Box& box, double pixelsPerUnit)
      : m_entities(EntityIndex::Of(database).Find(database, box)),
        m_looks(m_entities.empty() ? LayerStyles() : LayerStylesOf(database)),
        m_pixels(pixelsPerUnit) {}

  const std::vector<AcDbEntity*>& Entities() const { return m_entities; }
  std::vector<Shape> ShapesOf(AcDbEntity& entity) const {
    std::vector<Shape> shapes;
    ShapeCollector(m_looks, m_pixels, shapes).DrawEntity(entity);
    return shapes;
  }

 private:
  std::vector<AcDbEntity*> m_entities;
  LayerStyles m_looks;
  double m_pixels;
};

bool IsInside(const std::vector<Shape>& shapes, const Box& box) {
  for (const Shape& shape : shapes)
    for (const AcGePoint3d& p : OutlineOf(shape))
      if (!box.Touches({p.x, p.y, p.x, p.y})) return false;
  return !shapes.empty();
}

bool TouchesBox(const std::vector<Shape>& shapes, const Box& box) {
  for (const Shape& shape : shapes) {
    const std::vector<AcGePoint3d> outline = OutlineOf(shape);
    for (std::size_t i = 0; i + 1 < outline.size(); ++i)
      if (SegmentTouches(outline[i], outline[i + 1], box.x0, box.y0, box.x1, box.y1)) return true;
    // The box may be inside a text or a filled area.
    if (shape.kind != Shape::Kind::Polyline && DistanceTo(shape, {box.x0, box.y0, 0}) == 0)
      return true;
  }
  return false;
}

bool TouchesFence(const std::vector<Shape>& shapes, std::span<const AcGePoint3d> fence) {
  for (const Shape& shape : shapes) {
    const std::vector<AcGePoint3d> outline = OutlineOf(shape);
    for (std::size_t i = 0; i + 1 < outline.size(); ++i)
      for (std::size_t k = 0; k + 1 < fence.size(); ++k)
        if (SegmentsTouch(outline[i], outline[i + 1], fence[k], fence[k + 1])) return true;
  }
  return false;
}

}  // namespace

std::vector<Shape> BuildScene(AcDbDatabase& database, double pixelsPerUnit) {
  std::vector<Shape> shapes;
  const LayerStyles looks = LayerStylesOf(database);
  ShapeCollector collector(looks, pixelsPerUnit, shapes);
  for (AcDbEntity* entity : EntitiesOf(database)) collector.DrawEntity(*entity);
  return shapes;
}

std::vector<Shape> ShapesOf(AcDbEntity& entity, double pixelsPerUnit) {
  std::vector<Shape> shapes;
  const LayerStyles looks = entity.database() ? LayerStylesOf(*entity.database()) : LayerStyles();
  ShapeCollector(looks, pixelsPerUnit, shapes).DrawEntity(entity);
  return shapes;
}

AcDbExtents ExtentsOf(AcDbDatabase& database) {
  AcDbExtents extents;
  for (const Shape& shape : BuildScene(database, 1e-3))
    for (const AcGePoint3d& p : OutlineOf(shape)) extents.addPoint(p);
  return extents;
}

AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach,
                     const EntityTest& accepts) {
  const CandidateShapes candidates(database,
                                   {at.x - reach, at.y - reach, at.x + reach, at.y + reach},
                                   1 / std::max(reach, 1e-9));
  AcDbEntity* best = nullptr;
  double nearest = reach;
  for (AcDbEntity* entity : candidates.Entities()) {
    if (accepts && !accepts(*entity)) continue;
    for (const Shape& shape : candidates.ShapesOf(*entity)) {
      const double distance = DistanceTo(shape, at);
      // Of two at equal distance the later one, which is drawn on top.
      if (distance > nearest) continue;
      nearest = distance;
      best = entity;
    }
  }
  return best;
}

std::vector<AcDbEntity*> EntitiesIn(AcDbDatabase& database, const AcGePoint3d& a,
                                    const AcGePoint3d& b, bool crossing) {
  const Box box = {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
  const CandidateShapes candidates(database, box, kSelectionPixels);
  std::vector<AcDbEntity*> found;
  for (AcDbEntity* entity : candidates.Entities()) {
    const std::vector<Shape> shapes = candidates.ShapesOf(*entity);
    const bool hit = crossing ? TouchesBox(shapes, box) : IsInside(shapes, box);
    if (hit) found.push_back(entity);
  }
  return found;
}

std::vector<AcDbEntity*> EntitiesOnFence(AcDbDatabase& database,
                                         std::span<const AcGePoint3d> points) {
  AcDbExtents extents;
  for (const AcGePoint3d& p : points) extents.addPoint(p);
  std::vector<AcDbEntity*> found;
  if (points.size() < 2) return found;
  const AcGePoint3d lo = extents.minPoint(), hi = extents.maxPoint();
  const CandidateShapes candidates(database, {lo.x, lo.y, hi.x, hi.y}, kSelectionPixels);
  for (AcDbEntity* entity : candidates.Entities())
    if (TouchesFence(candidates.ShapesOf(*entity), points)) found.push_back(entity);
  return found;
}

bool PointOn(AcDbEntity& entity, AcGePoint3d* at) {
  const std::vector<Shape> shapes = ShapesOf(entity, 1);
  if (shapes.empty()) return false;
  const std::vector<AcGePoint3d> outline = OutlineOf(shapes[0]);
  const AcGePoint3d a = outline[0], b = outline.size() > 1 ? outline[1] : outline[0];
  *at = {a.x + (b.x - a.x) * 0.4, a.y + (b.y - a.y) * 0.4,
         0};  // Not the middle, where other entities often cross.
  if (shapes[0].kind == Shape::Kind::Text)
    *at = {(outline[0].x + outline[2].x) / 2, (outline[0].y + outline[2].y) / 2, 0};
  return true;
}

}  // namespace devhost
