// Colour, visibility and line type of layers.
#pragma once

#include <map>
#include <string>

#include "dbmain.h"

namespace devhost {

struct LayerStyle {
  int color = 7;
  bool shown = true;
  bool dashed = false;
};

using LayerStyles = std::map<std::wstring, LayerStyle>;  // by upper-case name

LayerStyles LayerStylesOf(AcDbDatabase& database);

}  // namespace devhost
