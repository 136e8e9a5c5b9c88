// A machine without windows has no views.
#include "kernel/qvxexport.h"

CWnd* QvxExport::GetCurDwgView() { return nullptr; }
bool QvxExport::IsCurDwgView(HWND) { return false; }
bool QvxExport::IsAcadDwgView(HWND) { return false; }
bool QvxExport::Tasdh1sh1ddhsj123(HWND) { return false; }
