// Bars and lines in a compiled file. Both walk the tree over a path on the heap, since a file may
// nest sub-menus as deep as it is long.
#pragma once

#include "menu/compiled_io.h"
#include "menu/menu_bar.h"

void WriteBar(CompiledWriter& out, TMenuBar& bar);
void WriteItem(CompiledWriter& out, TMenuItem& item);
// Lines are appended to what the bar has; the mask replaces the old one. An element joins its list
// before its fields are read, so that an exception leaves all that was read.
void ReadBar(CompiledReader& in, TMenuBar& bar);
void ReadItem(CompiledReader& in, TMenuItem& item);
