// Filters of selections: a chain of group codes that an entity is compared with.
#pragma once

#include "dbmain.h"

namespace devhost {

// A chain of groups: 0 type, 8 layer, 2 block, 1 text, 6 linetype, 62 colour, 67 paper space;
// numbers compare equal. -4 groups with "<OR" "<AND" "<NOT" nest. An empty chain passes everything.
bool PassesFilter(const AcDbEntity& entity, const resbuf* filter);

}  // namespace devhost
