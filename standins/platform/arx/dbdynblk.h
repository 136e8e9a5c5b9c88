// Dynamic blocks. A definition is changed for single references: such a reference refers to an
// anonymous copy of the definition (block "*U1", "*U2", ...) with the same entities in the same
// order. References in the initial state refer to the definition itself.
#pragma once

#include "dbidar.h"

class AcDbBlockTableRecord;
class AcDbBlockReference;

// A view of a block reference. The reference may be open or closed.
class AcDbDynBlockReference {
 public:
  explicit AcDbDynBlockReference(AcDbObjectId reference) : m_reference(reference) {}
  explicit AcDbDynBlockReference(AcDbObject* reference);
  bool isDynamicBlock() const;
  AcDbObjectId blockId() const { return m_reference; }  // the reference
  // The definition; of a block that is not dynamic, the block that the reference names.
  AcDbObjectId dynamicBlockTableRecord() const;
  AcDbObjectId anonymousBlockTableRecord() const;  // null: the reference shows the definition
  // Shows the definition again. eInvalidInput: no reference to a dynamic block.
  Acad::ErrorStatus resetBlock();

 private:
  const AcDbBlockTableRecord* Block() const;
  AcDbObjectId m_reference;
};

// A view of a block definition.
class AcDbDynBlockTableRecord {
 public:
  explicit AcDbDynBlockTableRecord(AcDbObjectId block) : m_block(block) {}
  explicit AcDbDynBlockTableRecord(AcDbObject* block);
  bool isDynamicBlock() const;  // false for an anonymous copy
  AcDbObjectId blockTableRecordId() const { return m_block; }
  Acad::ErrorStatus getAnonymousBlockIds(AcDbObjectIdArray& ids) const;  // eNotApplicable
  // Makes the anonymous copies equal to the definition again, each in its own state. The drawing
  // must be locked. eNotApplicable: not dynamic; eLockViolation.
  Acad::ErrorStatus updateAnonymousBlocks() const;

 private:
  AcDbBlockTableRecord* Definition() const;
  AcDbObjectId m_block;
};
