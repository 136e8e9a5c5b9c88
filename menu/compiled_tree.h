// Reads and writes bars and lines of a compiled file. The path through the tree is on the heap, not
// on the stack: a file may nest sub-menus without limit.
#pragma once

#include "menu/compiled_io.h"
#include "menu/menu_bar.h"

void WriteBar(CompiledWriter& out, TMenuBar& bar);
void WriteItem(CompiledWriter& out, TMenuItem& item);
// Lines are appended to the bar; the mask is replaced. An element is added to its list before its
// fields are read, so that after an exception everything read so far is in the model.
void ReadBar(CompiledReader& in, TMenuBar& bar);
void ReadItem(CompiledReader& in, TMenuItem& item);
