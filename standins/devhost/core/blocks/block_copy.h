// Copies of entities into blocks, and the attributes of references. Everything is recorded for undo
// if a step is being recorded.
#pragma once

#include <vector>

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

std::vector<AcDbEntity*> LiveEntities(const AcDbBlockTableRecord& block);

// Appends a copy of the entity, with its attributes, transformed. Null: it cannot be copied.
AcDbEntity* CopyInto(AcDbBlockTableRecord& block, const AcDbEntity& entity,
                     const AcGeMatrix3d& matrix);

// Appends an attribute for each definition of the reference's block that is not constant, with the
// default value. The reference is in the database.
void AppendAttributes(AcDbBlockReference& reference);

// The definition with a tag, or null.
const AcDbAttributeDefinition* AttributeNamed(const AcDbBlockTableRecord& block,
                                              const std::wstring& tag);

}  // namespace devhost
