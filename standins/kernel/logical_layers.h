// Logical layers: menus name a layer by its key in the layer standard, and the office decides what
// the layer is called. The names of the standard hold unless the section [Layers] of qvx.ini says
// otherwise, one line "KEY=name" a layer.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

// False for a key that neither knows; `out` is then untouched. Keys ignore case.
QVX_KERNEL bool GetLayer(const wchar_t* key, TWCString& out);

// The file is read again at the next question. DocStatus calls this.
QVX_KERNEL void ForgetLogicalLayers();
