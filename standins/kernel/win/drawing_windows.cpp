// The windows of the host that belong to drawings, found by their published positions: the frame's
// MDI client, its children, and in each child the pane with the first identifier.
#include "afxext.h"

#include "rxmfcapi.h"

#include "kernel/qvxexport.h"

namespace {

HWND MdiClient() {
  const CMDIFrameWnd* frame = acedGetAcadFrame();
  return frame ? frame->m_hWndMDIClient : nullptr;
}

bool IsInputRow(HWND window) {
  const CWnd* line = acedGetAcadDockCmdLine();
  if (!line || !line->m_hWnd || !::IsChild(line->m_hWnd, window)) return false;
  wchar_t kind[8] = L"";
  ::GetClassNameW(window, kind, 8);
  return !::lstrcmpiW(kind, L"Edit") && !(::GetWindowLongW(window, GWL_STYLE) & ES_READONLY);
}

}  // namespace

CWnd* QvxExport::GetCurDwgView() { return acedGetAcadDwgView(); }

bool QvxExport::IsCurDwgView(HWND window) {
  const CWnd* view = window ? GetCurDwgView() : nullptr;
  return view && view->m_hWnd == window;
}

bool QvxExport::IsAcadDwgView(HWND window) {
  if (IsCurDwgView(window)) return true;
  const HWND client = MdiClient();
  const HWND child = client && ::IsWindow(window) ? ::GetAncestor(window, GA_PARENT) : nullptr;
  return child && ::GetDlgCtrlID(window) == AFX_IDW_PANE_FIRST &&
         ::GetAncestor(child, GA_PARENT) == client;
}

// Most messages are for the current view, which is asked first.
bool QvxExport::Tasdh1sh1ddhsj123(HWND window) {
  if (!window) return false;
  if (IsCurDwgView(window) || window == adsw_acadMainWnd()) return true;
  const HWND client = MdiClient();
  if (!client || !::IsWindow(window)) return false;
  return window == client || ::GetAncestor(window, GA_PARENT) == client || IsAcadDwgView(window) ||
         IsInputRow(window);
}
