// The index of a database's entities; see the header.
#include "devhost/core/view/entity_index.h"

#include <algorithm>
#include <cmath>

#include "devhost/core/base/text_case.h"
#include "devhost/core/view/shape_collector.h"
#include "devhost/core/view/shape_geometry.h"

namespace devhost {
namespace {

// Arcs are drawn as twelve segments to a circle here, which lie inside the arc by less than a
// twentieth of the diagonal of what is drawn.
constexpr double kCoarsePixels = 1e-9, kArcMargin = 0.05;

bool BoundsOf(AcDbEntity& entity, Box* box) {
  static const LayerStyles allShown;
  std::vector<Shape> shapes;
  ShapeCollector(allShown, kCoarsePixels, shapes).DrawEntity(entity);
  AcDbExtents extents;
  for (const Shape& shape : shapes)
    for (const AcGePoint3d& p : OutlineOf(shape)) extents.addPoint(p);
  if (!extents.isValid()) return false;
  const AcGePoint3d lo = extents.minPoint(), hi = extents.maxPoint();
  const double margin = std::hypot(hi.x - lo.x, hi.y - lo.y) * kArcMargin;
  *box = {lo.x - margin, lo.y - margin, hi.x + margin, hi.y + margin};
  return true;
}

bool IsSpace(const AcDbBlockTableRecord& record) {
  return SameName(record.getName(), ACDB_MODEL_SPACE) ||
         SameName(record.getName(), ACDB_PAPER_SPACE);
}

// False for objects whose own data, as opposed to that of their members, places nothing.
bool MayMoveEntities(const AcDbObject& object) {
  const auto* record = AcDbBlockTableRecord::cast(&object);
  return record ? !IsSpace(*record)
                : !AcDbSymbolTable::cast(&object) && !AcDbLayerTableRecord::cast(&object);
}

// The entity of model or paper space that the object is, or is a part of; null otherwise.
AcDbEntity* EntityOfSpace(AcDbObject& object) {
  constexpr int kMaxDepth = 8;  // owners of a damaged file may form a circle
  AcDbObject* at = &object;
  for (int depth = 0; at && depth < kMaxDepth; ++depth) {
    AcDbObject* owner = at->ownerId().object();
    if (const auto* record = AcDbBlockTableRecord::cast(owner))
      return IsSpace(*record) ? AcDbEntity::cast(at) : nullptr;
    at = owner;
  }
  return nullptr;
}

}  // namespace

EntityIndex& EntityIndex::Of(AcDbDatabase& database) {
  auto& watcher = database.body().watcher;
  if (!watcher) watcher = std::make_unique<EntityIndex>();
  return static_cast<EntityIndex&>(*watcher);
}

void EntityIndex::Add(Space& space, AcDbEntity& entity) {
  const int slot = static_cast<int>(space.slots.size());
  space.slots.push_back({&entity, {}});
  space.slotOf[&entity] = slot;
  space.changed.push_back(slot);
}

EntityIndex::Space& EntityIndex::SpaceOf(const AcDbBlockTableRecord& record) {
  const auto [at, fresh] = m_spaces.try_emplace(&record);
  if (fresh)
    for (AcDbObjectId id : record.entities())
      if (AcDbEntity* entity = AcDbEntity::cast(id.object())) Add(at->second, *entity);
  return at->second;
}

void EntityIndex::Measure(Space& space, int slot) {
  Slot& at = space.slots[static_cast<std::size_t>(slot)];
  if (at.listed) space.grid.Remove(slot, at.box);
  at.listed = !at.entity->isErased() && BoundsOf(*at.entity, &at.box);
  if (at.listed) space.grid.Insert(slot, at.box);
}

// An entity that is still open may change again without a notification.
void EntityIndex::MeasureChanged(Space& space) {
  std::sort(space.changed.begin(), space.changed.end());
  space.changed.erase(std::unique(space.changed.begin(), space.changed.end()), space.changed.end());
  for (int slot : space.changed) Measure(space, slot);
  std::erase_if(space.changed, [&](int slot) {
    return !space.slots[static_cast<std::size_t>(slot)].entity->isReadEnabled();
  });
}

void EntityIndex::Prepare(AcDbDatabase& database) {
  if (const auto* record = AcDbBlockTableRecord::cast(database.currentSpaceId().object()))
    MeasureChanged(SpaceOf(*record));
}

std::vector<AcDbEntity*> EntityIndex::Find(AcDbDatabase& database, const Box& box) {
  std::vector<AcDbEntity*> found;
  const auto* record = AcDbBlockTableRecord::cast(database.currentSpaceId().object());
  if (!record) return found;
  Space& space = SpaceOf(*record);
  MeasureChanged(space);
  std::vector<int> slots;
  space.grid.Find(box, &slots);
  std::sort(slots.begin(), slots.end());
  for (int slot : slots) {
    const Slot& at = space.slots[static_cast<std::size_t>(slot)];
    if (!at.entity->isErased() && at.box.Touches(box)) found.push_back(at.entity);
  }
  return found;
}

// A change of a block definition, or of an object that is no entity, may move any entity.
void EntityIndex::OnChange(AcDbObject& object) {
  if (m_spaces.empty() || !MayMoveEntities(object)) return;
  AcDbEntity* entity = EntityOfSpace(object);
  if (!entity) return Reset();
  const auto space = m_spaces.find(entity->ownerId().object());
  if (space == m_spaces.end()) return;
  const auto slot = space->second.slotOf.find(entity);
  if (slot == space->second.slotOf.end())
    Add(space->second, *entity);
  else
    space->second.changed.push_back(slot->second);
}

}  // namespace devhost
