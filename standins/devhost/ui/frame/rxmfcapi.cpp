// Published functions that return windows of the host or convert between pixels and world points.
#include "afxext.h"

#include "rxmfcapi.h"

#include "devhost/core/host/host.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/view/drawing_child.h"

using devhost::DrawingChild;
using devhost::TheFrame;
using devhost::TheHostUi;

namespace {

devhost::DrawingView* View() {
  DrawingChild* child = TheHostUi().ActiveChild();
  return child ? &child->View() : nullptr;
}

}  // namespace

CMDIFrameWnd* acedGetAcadFrame() { return TheFrame(); }

CWnd* acedGetAcadDwgView() { return View(); }

CWnd* acedGetAcadDockCmdLine() { return TheFrame() ? &TheFrame()->Commands() : nullptr; }

CWinApp* acedGetAcadWinApp() { return AfxGetApp(); }

HWND adsw_acadMainWnd() { return TheFrame() ? TheFrame()->m_hWnd : nullptr; }

HWND adsw_acadDocWnd() {
  DrawingChild* child = TheHostUi().ActiveChild();
  return child ? child->m_hWnd : nullptr;
}

void acedRestoreStatusBar() {
  if (TheFrame()) TheFrame()->Status().RestoreMessage();
}

namespace {

devhost::Document* Current() { return devhost::TheHost().documents.Current(); }

// The view of a viewport on the screen; null: not there.
devhost::ViewTransform* ViewOf(int viewport) {
  return Current() && View() ? Current()->viewports.ViewOf(viewport) : nullptr;
}

void Store(const AcGePoint3d& p, ads_point out) {
  out[0] = p.x;
  out[1] = p.y;
  out[2] = p.z;
}

}  // namespace

int acedGetWinNum(int x, int y) { return View() ? Current()->viewports.At({x, y}) : 0; }

void acedCoordFromPixelToWorld(const CPoint& pixel, ads_point world) {
  if (Current()) Store(Current()->view.ToWorld({pixel.x, pixel.y}), world);
}

int acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world) {
  const devhost::ViewTransform* view = ViewOf(viewport);
  if (!view) return 0;
  Store(view->ToWorld({pixel.x, pixel.y}), world);
  return 1;
}

int acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel) {
  const devhost::ViewTransform* view = ViewOf(viewport);
  if (!view) return 0;
  const POINT at = view->ToPixel({world[0], world[1], world[2]});
  pixel = CPoint(at.x, at.y);
  return 1;
}
