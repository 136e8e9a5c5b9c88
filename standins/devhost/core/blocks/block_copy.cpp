// Copies of entities; see the header.
#include "devhost/core/blocks/block_copy.h"

#include <memory>

#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

void Append(AcDbBlockReference& reference, std::unique_ptr<AcDbAttribute> attribute) {
  if (reference.appendAttribute(attribute.get()) == Acad::eOk) attribute.release();
}

void CopyAttributes(const AcDbBlockReference& from, AcDbBlockReference& to,
                    const AcGeMatrix3d& matrix) {
  for (AcDbObjectId id : from.attributes()) {
    if (id.isErased()) continue;
    std::unique_ptr<AcRxObject> made(id.object()->clone());
    auto* attribute = AcDbAttribute::cast(made.get());
    if (!attribute) continue;
    made.release();
    attribute->subTransformBy(matrix);
    Append(to, std::unique_ptr<AcDbAttribute>(attribute));
  }
}

}  // namespace

std::vector<AcDbEntity*> LiveEntities(const AcDbBlockTableRecord& block) {
  std::vector<AcDbEntity*> entities;
  for (AcDbObjectId id : block.entities())
    if (AcDbEntity* entity = id.isErased() ? nullptr : AcDbEntity::cast(id.object()))
      entities.push_back(entity);
  return entities;
}

AcDbEntity* CopyInto(AcDbBlockTableRecord& block, const AcDbEntity& entity,
                     const AcGeMatrix3d& matrix) {
  std::unique_ptr<AcRxObject> made(entity.clone());
  AcDbEntity* copy = AcDbEntity::cast(made.get());
  if (!copy) return nullptr;
  copy->subTransformBy(matrix);
  if (block.appendAcDbEntity(copy) != Acad::eOk) return nullptr;
  made.release();
  const auto* from = AcDbBlockReference::cast(&entity);
  if (auto* to = AcDbBlockReference::cast(copy); from && to) CopyAttributes(*from, *to, matrix);
  return copy;
}

void AppendAttributes(AcDbBlockReference& reference) {
  const AcDbBlockTableRecord* block =
      AcDbBlockTableRecord::cast(reference.blockTableRecord().object());
  if (!block) return;
  for (const AcDbEntity* entity : LiveEntities(*block)) {
    const auto* definition = AcDbAttributeDefinition::cast(entity);
    if (!definition || definition->isConstant()) continue;
    auto attribute = std::make_unique<AcDbAttribute>();
    attribute->setAttributeFromBlock(definition, reference.blockTransform());
    Append(reference, std::move(attribute));
  }
}

const AcDbAttributeDefinition* AttributeNamed(const AcDbBlockTableRecord& block,
                                              const std::wstring& tag) {
  for (const AcDbEntity* entity : LiveEntities(block)) {
    const auto* definition = AcDbAttributeDefinition::cast(entity);
    if (definition && SameName(definition->tagConst(), tag)) return definition;
  }
  return nullptr;
}

}  // namespace devhost
