// Logical layers: menus name a layer by its key in the layer standard. The layer's name is that of
// the standard unless the section [Layers] of qvx.ini has a line "KEY=name" for it.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

// False, with `out` unchanged, for a key in neither. Keys ignore case.
QVX_KERNEL bool GetLayer(const wchar_t* key, TWCString& out);

// The next GetLayer reads the file again. DocStatus calls this.
QVX_KERNEL void ForgetLogicalLayers();
