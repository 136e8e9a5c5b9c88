// Drawings as shapes; see the header.
#include "devhost/core/view/scene.h"

#include <algorithm>

#include "dbents.h"
#include "dbsymtb.h"
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

AcDbEntity* EntityAt(AcDbDatabase& database, const AcGePoint3d& at, double reach) {
  AcDbObject* best = nullptr;
  double nearest = reach;
  for (const Shape& shape : BuildScene(database, 1 / std::max(reach, 1e-9))) {
    const double distance = DistanceTo(shape, at);
    // Of two at equal distance the later one, which is drawn on top.
    if (distance > nearest) continue;
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
         0};  // Not the middle, where other entities often cross.
  if (shapes[0].kind == Shape::Kind::Text)
    *at = {(outline[0].x + outline[2].x) / 2, (outline[0].y + outline[2].y) / 2, 0};
  return true;
}

}  // namespace devhost
