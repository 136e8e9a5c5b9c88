// Dynamic blocks. A definition is dynamic if its record has extended data of
// "AcDbDynamicBlockTrueName", or if its extension dictionary in the drawing file has an entry
// "ACAD_ENHANCEDBLOCK". An anonymous copy names its definition by handle in extended data of
// "AcDbBlockRepBTag". The host offers two parameters: a reference can be flipped (mirrored at the
// vertical line through the base point) and stretched (everything right of that line is moved).
// The state of a copy is extended data of "DEVHOST_BLOCK_STATE"; other copies are in the initial
// state. References in equal states share a copy.
#pragma once

#include <vector>

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

struct BlockState {
  bool flipped = false;
  double stretch = 0;  // drawing units of the definition

  bool IsInitial() const { return !flipped && stretch == 0; }
  bool operator==(const BlockState&) const = default;
};

bool IsDynamic(const AcDbBlockTableRecord& block);
void MakeDynamic(AcDbBlockTableRecord& block);
// The dynamic definition: the block itself or that of which it is an anonymous copy; null if there
// is none.
AcDbBlockTableRecord* DynamicDefinitionOf(AcDbBlockTableRecord& block);

BlockState StateOf(const AcDbBlockTableRecord& copy);
// The anonymous copies of a definition.
std::vector<AcDbBlockTableRecord*> CopiesOf(const AcDbBlockTableRecord& definition);
// Makes the reference show the definition in that state. The reference is open for writing. False:
// not a reference to a dynamic block.
bool SetState(AcDbBlockReference& reference, const BlockState& state);
// Makes a copy equal to the definition in the state of the copy. Entities of equal classes keep
// their identifiers.
void UpdateCopy(AcDbBlockTableRecord& copy, const AcDbBlockTableRecord& definition);

}  // namespace devhost
