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

constexpr int kViewport = 2;  // number of the model space viewport

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

// The value of CVPORT: 1 in paper space, otherwise the model space viewport.
int CurrentViewport() {
  std::wstring tile, port;
  devhost::TheHost().variables.Get(L"TILEMODE", &tile);
  if (tile == L"0" && devhost::TheHost().variables.Get(L"CVPORT", &port) == devhost::VarResult::Ok)
    return std::stoi(port);
  return kViewport;
}

bool Shows(int viewport) { return Current() && View() && viewport == CurrentViewport(); }

}  // namespace

int acedGetWinNum(int x, int y) {
  if (!View()) return 0;
  RECT client{};
  ::GetClientRect(View()->m_hWnd, &client);
  return ::PtInRect(&client, POINT{x, y}) ? CurrentViewport() : 0;
}

void acedCoordFromPixelToWorld(const CPoint& pixel, ads_point world) {
  if (!Current()) return;
  const AcGePoint3d at = Current()->view.ToWorld({pixel.x, pixel.y});
  world[0] = at.x;
  world[1] = at.y;
  world[2] = at.z;
}

int acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world) {
  if (!Shows(viewport)) return 0;
  acedCoordFromPixelToWorld(pixel, world);
  return 1;
}

int acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel) {
  if (!Shows(viewport)) return 0;
  const POINT at = Current()->view.ToPixel({world[0], world[1], world[2]});
  pixel = CPoint(at.x, at.y);
  return 1;
}
