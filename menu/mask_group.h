// Makes the groups of an object mask: nodes that hold a DXF group code and a value of the kind that
// the code has. The source parser and the compiled file make them; a TRBList owns the chain.
#pragma once

#include <memory>

#include "kernel/trblist.h"

using MaskGroup = std::unique_ptr<TGroups>;

MaskGroup NewShortGroup(int code, short value);
MaskGroup NewRealGroup(int code, double value);
MaskGroup NewLongGroup(int code, int value);
MaskGroup NewTextGroup(int code, const wchar_t* text);  // copies the text
MaskGroup NewGroupWithoutValue(int code);
