// Dynamic blocks of a drawing file: their records have an extension dictionary, an object of the
// file, with an entry "ACAD_ENHANCEDBLOCK". Used by the drawing reader.
#pragma once

#include <span>

#include "dbmain.h"
#include "devhost/core/dxf/dxf_text.h"

namespace devhost {

// Marks the block records. The groups are all of the file, whose records have been read.
void MarkDynamicBlocks(std::span<const DxfGroup> groups, AcDbDatabase& database);

}  // namespace devhost
