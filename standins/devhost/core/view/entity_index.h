// Where the entities of a database are: finds the ones near a place without drawing the others.
// The database notifies it of changes, and it measures the changed
// entities again at the next question.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/view/box_grid.h"

namespace devhost {

class EntityIndex : public DatabaseWatcher {
 public:
  static EntityIndex& Of(AcDbDatabase& database);

  // The entities of the current space that may draw something in the box, in drawing order. Whether
  // their layers are visible does not count.
  std::vector<AcDbEntity*> Find(AcDbDatabase& database, const Box& box);

  // Measures the current space now, so that the first hit test does not.
  void Prepare(AcDbDatabase& database);

  // Measures everything again. For drawings that depend on more than their objects.
  void Reset() { m_spaces.clear(); }

  void OnChange(AcDbObject& object) override;
  void OnReplace() override { Reset(); }

 private:
  struct Slot {
    AcDbEntity* entity;
    Box box;
    bool listed = false;  // in the grid; false for entities that draw nothing
  };
  struct Space {
    std::vector<Slot> slots;  // in drawing order; an item of the grid is an index
    std::unordered_map<const AcDbObject*, int> slotOf;
    std::vector<int> changed;  // slots to measure again
    BoxGrid grid;
  };

  Space& SpaceOf(const AcDbBlockTableRecord& record);
  static void Add(Space& space, AcDbEntity& entity);
  static void Measure(Space& space, int slot);
  static void MeasureChanged(Space& space);

  std::map<const AcDbObject*, Space> m_spaces;  // by block table record
};

}  // namespace devhost
