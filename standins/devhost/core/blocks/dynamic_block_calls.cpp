// The published classes for dynamic blocks.
#include "dbdynblk.h"

#include "acdocman.h"
#include "devhost/core/blocks/dynamic_block.h"

using namespace devhost;

namespace {

AcDbObjectId IdOf(const AcDbObject* object) { return object ? object->objectId() : AcDbObjectId(); }

AcDbBlockTableRecord* BlockOf(AcDbObjectId id) {
  return id.isErased() ? nullptr : AcDbBlockTableRecord::cast(id.object());
}

}  // namespace

AcDbDynBlockReference::AcDbDynBlockReference(AcDbObject* reference)
    : m_reference(IdOf(reference)) {}

const AcDbBlockTableRecord* AcDbDynBlockReference::Block() const {
  const auto* reference = AcDbBlockReference::cast(m_reference.object());
  return reference ? BlockOf(reference->blockTableRecord()) : nullptr;
}

bool AcDbDynBlockReference::isDynamicBlock() const {
  auto* block = const_cast<AcDbBlockTableRecord*>(Block());
  return block && DynamicDefinitionOf(*block);
}

AcDbObjectId AcDbDynBlockReference::dynamicBlockTableRecord() const {
  auto* block = const_cast<AcDbBlockTableRecord*>(Block());
  if (!block) return {};
  const AcDbBlockTableRecord* definition = DynamicDefinitionOf(*block);
  return IdOf(definition ? definition : block);
}

AcDbObjectId AcDbDynBlockReference::anonymousBlockTableRecord() const {
  auto* block = const_cast<AcDbBlockTableRecord*>(Block());
  const AcDbBlockTableRecord* definition = block ? DynamicDefinitionOf(*block) : nullptr;
  return definition && definition != block ? block->objectId() : AcDbObjectId();
}

Acad::ErrorStatus AcDbDynBlockReference::resetBlock() {
  AcDbBlockReference* reference = nullptr;
  const Acad::ErrorStatus status = acdbOpenObject(reference, m_reference, AcDb::kForWrite);
  if (status != Acad::eOk) return status;
  const bool set = SetState(*reference, {});
  reference->close();
  return set ? Acad::eOk : Acad::eInvalidInput;
}

AcDbDynBlockTableRecord::AcDbDynBlockTableRecord(AcDbObject* block) : m_block(IdOf(block)) {}

AcDbBlockTableRecord* AcDbDynBlockTableRecord::Definition() const {
  AcDbBlockTableRecord* block = BlockOf(m_block);
  return block && IsDynamic(*block) ? block : nullptr;
}

bool AcDbDynBlockTableRecord::isDynamicBlock() const { return Definition() != nullptr; }

Acad::ErrorStatus AcDbDynBlockTableRecord::getAnonymousBlockIds(AcDbObjectIdArray& ids) const {
  const AcDbBlockTableRecord* definition = Definition();
  if (!definition) return Acad::eNotApplicable;
  for (const AcDbBlockTableRecord* copy : CopiesOf(*definition)) ids.append(copy->objectId());
  return Acad::eOk;
}

Acad::ErrorStatus AcDbDynBlockTableRecord::updateAnonymousBlocks() const {
  const AcDbBlockTableRecord* definition = Definition();
  if (!definition) return Acad::eNotApplicable;
  const AcApDocument* document = acDocManagerPtr()->document(definition->database());
  if (document && document->lockMode() == AcAp::kNotLocked) return Acad::eLockViolation;
  AcDbEntity* drawn = nullptr;
  for (AcDbBlockTableRecord* copy : CopiesOf(*definition)) {
    UpdateCopy(*copy, *definition);
    for (AcDbObjectId id : copy->entities())
      if (!id.isErased()) drawn = AcDbEntity::cast(id.object());
  }
  if (drawn) drawn->draw();
  return Acad::eOk;
}
