// Selection filters: group codes and values that an entity must match.
#pragma once

#include "dbmain.h"

namespace devhost {

// Groups: 0 type, 8 layer, 2 block, 1 text, 6 linetype, 62 colour, 67 paper space, 410 tab; numbers
// compare equal, texts are wild-card patterns. -4 groups "<OR" "<AND" "<NOT" nest. An empty chain
// matches everything.
bool PassesFilter(const AcDbEntity& entity, const resbuf* filter);

}  // namespace devhost
