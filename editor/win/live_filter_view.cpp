// LiveFilterHost: the drawing view.
#include "afxwin.h"

#include "adslib.h"
#include "aced.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "editor/editor_door.h"
#include "editor/win/drain_timers.h"
#include "editor/win/live_filter_host.h"
#include "ground/win/module_resources.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "kernel/tviewportresize.h"
#include "resources/resource_ids.h"
#include "rxmfcapi.h"

namespace {

constexpr UINT kPreviewDelay = 1;  // a burst of moves ends in one step

HCURSOR EditCursor() {
  static HCURSOR cursor = nullptr;  // kept once it is loaded
  if (!cursor) {
    const qvx::ModuleResources resources;
    cursor = ::LoadCursorW(AfxGetResourceHandle(), MAKEINTRESOURCEW(IDC_EDIT_CURSOR));
  }
  return cursor;
}

AcGePoint3d PointOf(const ads_point point) { return {point[0], point[1], point[2]}; }

}  // namespace

bool LiveFilterHost::HasCurrentView() { return QvxExport::GetCurDwgView() != nullptr; }
bool LiveFilterHost::IsCurrentView(HWND window) { return QvxExport::IsCurDwgView(window); }
bool LiveFilterHost::IsDrawingView(HWND window) { return QvxExport::IsAcadDwgView(window); }

POINT LiveFilterHost::ToView(POINT screen) {
  if (const CWnd* view = QvxExport::GetCurDwgView()) view->ScreenToClient(&screen);
  return screen;
}
POINT LiveFilterHost::ToScreen(POINT view) {
  if (const CWnd* window = QvxExport::GetCurDwgView()) window->ClientToScreen(&view);
  return view;
}
RECT LiveFilterHost::ViewOnScreen() {
  CRect area;
  if (const CWnd* view = QvxExport::GetCurDwgView()) {
    view->GetClientRect(area);
    view->ClientToScreen(area);
  }
  return area;
}
POINT LiveFilterHost::CursorPosition() {
  POINT at{};
  ::GetCursorPos(&at);
  return at;
}
void LiveFilterHost::MoveCursor(POINT screen) { ::SetCursorPos(screen.x, screen.y); }
void LiveFilterHost::SetEditCursor() { ::SetCursor(EditCursor()); }
void LiveFilterHost::SendKeyToView(int key) {
  if (CWnd* view = QvxExport::GetCurDwgView())
    view->SendMessage(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
}
void LiveFilterHost::RestartPreviewTimer() {
  if (!HasContextWindow()) return;
  g_pContextMenu->KillTimer(kPreviewTimer);
  DrainTimers(g_pContextMenu->m_hWnd);
  g_pContextMenu->SetTimer(kPreviewTimer, kPreviewDelay, nullptr);
}

int LiveFilterHost::ViewportAt(POINT view) { return acedGetWinNum(view.x, view.y); }
bool LiveFilterHost::ViewportToWorld(int viewport, POINT view, AcGePoint3d& world) {
  ads_point point{};
  if (!acedCoordFromPixelToWorld(viewport, CPoint(view), point)) return false;
  world = PointOf(point);
  return true;
}
AcGePoint3d LiveFilterHost::ViewToWorld(POINT view) {
  ads_point point{};
  acedCoordFromPixelToWorld(CPoint(view), point);
  return PointOf(point);
}
bool LiveFilterHost::WorldToViewport(int viewport, const AcGePoint3d& world, POINT& view) {
  const ads_point point = {world.x, world.y, world.z};
  CPoint pixel;
  if (!acedCoordFromWorldToPixel(viewport, point, pixel)) return false;
  view = pixel;
  return true;
}
AcGePoint3d LiveFilterHost::WorldToUser(const AcGePoint3d& world) {
  constexpr int kWorld = 0, kUser = 1;  // codes of the coordinate systems
  resbuf from{}, to{};
  from.restype = to.restype = RTSHORT;
  from.resval.rint = kWorld;
  to.resval.rint = kUser;
  const ads_point point = {world.x, world.y, world.z};
  ads_point result = {world.x, world.y, world.z};
  acedTrans(point, &from, &to, FALSE, result);
  return PointOf(result);
}
AcGeVector3d LiveFilterHost::UserYDirection() {
  AcDbHostApplicationServices* services = acdbHostApplicationServices();
  const AcDbDatabase* database = services ? services->workingDatabase() : nullptr;
  return database ? database->ucsydir() : AcGeVector3d();
}
void LiveFilterHost::ZoomAt(const AcGePoint3d& world, double factor) {
  QvxExport::ArxZoomCursor(world, factor);
}

bool LiveFilterHost::ResizeOnMouseMove(UINT flags, POINT view) {
  return TViewportResize::OnMouseMove(flags, view);
}
bool LiveFilterHost::ResizeOnButtonDown(UINT flags, POINT view) {
  return TViewportResize::OnLButtonDown(flags, view);
}
bool LiveFilterHost::ResizeOnButtonUp(UINT flags, POINT view) {
  return TViewportResize::OnLButtonUp(flags, view);
}
void LiveFilterHost::ResizeOnEscape() { TViewportResize::OnEscape(); }
