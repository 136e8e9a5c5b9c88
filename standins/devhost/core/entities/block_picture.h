// Drawing an entity by a block: references to blocks and dimensions.
#pragma once

#include <string>

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

// The block of that name in the drawing of `from`, or null.
const AcDbBlockTableRecord* BlockNamed(const AcDbObject& from, const std::wstring& name);
bool DrawParts(AcGiWorldDraw* draw, const AcDbBlockTableRecord& block, const AcGeMatrix3d& matrix);

}  // namespace devhost
