#include "kernel/view_pointer.h"

#include "afxext.h"

#include "rxmfcapi.h"

bool PointerInView(AcGePoint3d& at) {
  CWnd* view = acedGetAcadDwgView();
  POINT pointer{};
  RECT client{};
  if (!view || !::GetCursorPos(&pointer) || !::ScreenToClient(view->m_hWnd, &pointer) ||
      !::GetClientRect(view->m_hWnd, &client) || !::PtInRect(&client, pointer))
    return false;
  ads_point world{};
  acedCoordFromPixelToWorld(CPoint(pointer), world);
  at = {world[0], world[1], world[2]};
  return true;
}
