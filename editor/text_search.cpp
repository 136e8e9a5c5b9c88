#include "editor/text_search.h"

#include "editor/filter_host.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr double kLastHostWithPlainText = 16.1;  // later ones edit plain text in place themselves
constexpr double kSheetReach = 1e9;              // half the length of the first fence
constexpr double kAxisReach = 10000;             // half the length of the second
constexpr wchar_t kDetachedText[] = L"QVX_SHEET,QVX_DRAWINGINDEX,QVX_INDEXPOINTER,QVX_AXIS_LABEL";

// Each stage runs only if the one before found nothing.
void SearchText(FilterHost& host, const AcGePoint3d& at, TPickEntSet& set) {
  const wchar_t* types = g_dHostVersion > kLastHostWithPlainText ? L"QVX_*" : L"QVX_*,TEXT";
  if (host.SelectAt(at, types, set) > 0) return;
  const AcGePoint3d top(at.x, at.y + kSheetReach, 0), bottom(at.x, at.y - kSheetReach, 0);
  if (host.SelectFence(top, bottom, kDetachedText, set) > 0) return;
  // The direction is the world's and the point the user's. In a rotated system the fence is off.
  const AcGeVector3d reach = host.UserYDirection().normal() * kAxisReach;
  host.SelectFence(at - reach, at + reach, kDetachedText, set);
}

}  // namespace

bool FindDrawingPoint(FilterHost& host, POINT screen, DrawingPoint& point) {
  if (!host.HasCurrentView()) return false;
  const POINT at = host.ToView(screen);
  if (!host.ViewportToWorld(host.ShortVariable(L"CVPORT"), at, point.world)) return false;
  point.user = host.WorldToUser(point.world);
  return true;
}

TSubText* FindText(FilterHost& host, const DrawingPoint& point) {
  TPickEntSet set;
  SearchText(host, point.user, set);
  return host.HitTestOnText(set, point.world);
}

}  // namespace qvx
