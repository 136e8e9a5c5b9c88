// How layers show their entities: colour, visibility and line type.
#pragma once

#include <map>
#include <string>

#include "dbmain.h"

namespace devhost {

struct LayerLook {
  int color = 7;
  bool shown = true;
  bool dashed = false;
};

using LayerLooks = std::map<std::wstring, LayerLook>;  // by upper-case name

LayerLooks LooksOf(AcDbDatabase& database);

}  // namespace devhost
