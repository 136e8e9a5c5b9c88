// Copies of objects; see the header.
#include "devhost/core/undo/object_copy.h"

#include <memory>

#include "dbents.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/undo/object_state.h"

namespace devhost {
namespace {

constexpr short kList = 102;  // a list in braces, of references to other objects

std::vector<KeptGroup> WithoutLists(const std::vector<KeptGroup>& groups) {
  std::vector<KeptGroup> plain;
  bool inside = false;
  for (const KeptGroup& group : groups) {
    if (group.code == kList)
      inside = group.text.starts_with(L'{');
    else if (!inside)
      plain.push_back(group);
  }
  return plain;
}

}  // namespace

void CopyData(const AcDbObject& from, AcDbObject& to) {
  ObjectState(from).Restore(to);
  AcDbEntity* target = AcDbEntity::cast(&to);
  const AcDbEntity* source = AcDbEntity::cast(&from);
  if (!target || !source) return;
  AcDbObjectAccess::CommonGroups(*target) =
      WithoutLists(AcDbObjectAccess::CommonGroups(const_cast<AcDbEntity&>(*source)));
}

}  // namespace devhost

AcRxObject* AcDbObject::clone() const {
  std::unique_ptr<AcRxObject> made(isA()->create());
  AcDbObject* copy = AcDbObject::cast(made.get());
  if (!copy) return nullptr;
  devhost::CopyData(*this, *copy);
  return made.release();
}

AcRxObject* AcDbProxyEntity::clone() const {
  auto copy = std::make_unique<AcDbProxyEntity>();
  copy->m_dxfName = m_dxfName;
  copy->m_groups = m_groups;
  devhost::CopyData(*this, *copy);
  return copy.release();
}
