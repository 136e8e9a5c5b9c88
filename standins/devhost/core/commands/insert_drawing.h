// Blocks of a drawing for INSERT: one that the drawing has, or a drawing file as a new block.
#pragma once

#include <string>

#include "dbmain.h"

namespace devhost {

// The block of this name; otherwise the file of this name becomes a block named after it, with its
// model space, its blocks and its layers. What the drawing has already under the same name is kept.
// Null with a reason, without line end, if there is neither.
AcDbObjectId BlockForInsert(AcDbDatabase& database, const std::wstring& name, std::wstring* why);

}  // namespace devhost
