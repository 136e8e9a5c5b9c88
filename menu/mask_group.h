// Creates the groups of an object mask: nodes with a DXF group code and a value of the kind that
// belongs to the code. The source parser and the compiled file's reader call these; a TRBList owns
// the chain.
#pragma once

#include <memory>

#include "kernel/trblist.h"

using MaskGroup = std::unique_ptr<TGroups>;

MaskGroup NewShortGroup(int code, short value);
MaskGroup NewRealGroup(int code, double value);
MaskGroup NewLongGroup(int code, int value);
MaskGroup NewTextGroup(int code, const wchar_t* text);  // copies the text
MaskGroup NewGroupWithoutValue(int code);
