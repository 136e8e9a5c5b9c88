// Drawing an entity by the block that holds its picture. For the entities of the host that are
// drawn so: references to blocks, dimensions.
#pragma once

#include <string>

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

// The block of that name in the drawing of `from`; null when there is none.
const AcDbBlockTableRecord* BlockNamed(const AcDbObject& from, const std::wstring& name);
bool DrawParts(AcGiWorldDraw* draw, const AcDbBlockTableRecord& block, const AcGeMatrix3d& matrix);

}  // namespace devhost
