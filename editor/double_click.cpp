#include "editor/double_click.h"

#include "editor/filter_host.h"
#include "editor/in_place_edit.h"
#include "editor/text_search.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr int kProductWithFloors = 17;  // its floor rectangles have an editor of their own
constexpr wchar_t kCancel[] = L"\x1B";  // ends what the host began with the first click

enum class TextResult { kPass, kSwallow, kEditObject };

bool Selects(FilterHost& host, const AcGePoint3d& at, const wchar_t* types) {
  TPickEntSet set;
  return host.SelectAt(at, types, set) > 0;
}

TextResult EditTextAt(FilterHost& host, InPlaceEdit& edit, const DrawingPoint& point) {
  if (Selects(host, point.user, L"TEXT,MTEXT")) return TextResult::kPass;  // the host edits these
  TSubText* fragment = FindText(host, point);
  if (!fragment && Selects(host, point.user, nullptr)) return TextResult::kEditObject;
  host.ClearSelection();
  if (fragment) edit.BeginEdit(fragment, AcGeMatrix3d());
  host.SendToHost(kCancel);
  return fragment ? TextResult::kSwallow : TextResult::kPass;
}

// Edits what is selected, which need not be what was clicked.
bool EditSelectedObject(FilterHost& host) {
  if (!g_bDblClkEditObj) return false;
  TPickEntSet set;
  if (host.SelectImplied(L"QVX_*", set) != 1) return false;
  if (g_nProductId == kProductWithFloors && host.IsFloorRectangle(set)) return false;
  if (!host.IsEditable(set)) return false;
  TWCString command = host.FullCommandName(L"TObjEdit");
  command += L"\n";
  host.SendToHost(command);
  return true;
}

}  // namespace

bool HandleDoubleClick(FilterHost& host, InPlaceEdit& edit, const MSG& message) {
  if (host.CommandActive() != 0) return false;
  DrawingPoint point;
  if (FindDrawingPoint(host, message.pt, point) && !edit.IsVisible()) {
    const TextResult result = EditTextAt(host, edit, point);
    if (result != TextResult::kEditObject) return result == TextResult::kSwallow;
  }
  return EditSelectedObject(host);
}

}  // namespace qvx
