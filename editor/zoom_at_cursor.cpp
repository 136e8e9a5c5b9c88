#include "editor/zoom_at_cursor.h"

#include "editor/filter_host.h"

namespace qvx {
namespace {

constexpr int kSheet = 1;  // of CVPORT: paper space

// The host would draw the dense grid at each step.
void TurnGridOff(FilterHost& host) {
  host.PrintWithPrompt(L"为了视图缩放, 网格(GRID)已自动关闭!");
  host.SendKeyToView(VK_F7);
}

}  // namespace

bool ZoomAtCursor(FilterHost& host, POINT screen, double factor) {
  if (!host.HasCurrentView()) return false;
  const POINT at = host.ToView(screen);
  const int viewport = host.ViewportAt(at);
  const int current = host.ShortVariable(L"CVPORT");
  const bool hasGrid = host.ShortVariable(L"GRIDMODE") != 0;
  if (viewport != current && current != kSheet) return false;
  AcGePoint3d kept;
  // On a sheet with the pointer outside of it the key is swallowed too.
  if (!host.ViewportToWorld(viewport, at, kept)) return true;
  const AcGePoint3d centre = host.ViewToWorld(at);
  if (hasGrid) TurnGridOff(host);
  host.ZoomAt(centre, factor);
  POINT moved{};
  if (host.WorldToViewport(viewport, kept, moved)) host.MoveCursor(host.ToScreen(moved));
  return true;
}

}  // namespace qvx
