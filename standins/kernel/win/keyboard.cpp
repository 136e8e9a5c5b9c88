#include "afx.h"

#include "kernel/qvxexport.h"

bool QvxExport::IsKeyPressed(int virtualKey) { return (GetKeyState(virtualKey) & 0x8000) != 0; }
