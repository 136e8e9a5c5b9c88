// Drawing by blocks; see the header.
#include "devhost/core/entities/block_picture.h"

namespace devhost {

const AcDbBlockTableRecord* BlockNamed(const AcDbObject& from, const std::wstring& name) {
  if (!from.database() || name.empty()) return nullptr;
  AcDbObjectId id;
  const auto* table = AcDbBlockTable::cast(from.database()->blockTableId().object());
  return table->getAt(name.c_str(), id) == Acad::eOk ? AcDbBlockTableRecord::cast(id.object())
                                                     : nullptr;
}

bool DrawParts(AcGiWorldDraw* draw, const AcDbBlockTableRecord& block, const AcGeMatrix3d& matrix) {
  draw->geometry().pushModelTransform(matrix);
  for (AcDbObjectId id : block.entities()) {
    const AcDbEntity* part = id.isErased() ? nullptr : AcDbEntity::cast(id.object());
    const auto* definition = AcDbAttributeDefinition::cast(part);
    if (definition && (!definition->isConstant() || definition->isInvisible())) continue;
    if (part && !draw->geometry().draw(part)) break;
  }
  draw->geometry().popModelTransform();
  return true;
}

}  // namespace devhost
