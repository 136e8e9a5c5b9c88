// Model space and paper space; see the header.
#include "devhost/core/variables/space_variables.h"

#include <cwchar>
#include <utility>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/selection.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

bool IsOnSheet(const Document& document) {
  const auto tile = document.variables.find(L"TILEMODE");
  return tile != document.variables.end() && tile->second == L"0";
}

int NumberOf(const std::wstring& value) {
  return static_cast<int>(std::wcstol(value.c_str(), nullptr, 10));
}

// The selection belongs to the other space, and so does the view, except that of a tile which was
// on the screen before.
void OnSpaceChanged(Document& document, bool viewIsValid) {
  if (!viewIsValid) document.view.ZoomTo(ExtentsOf(*document.database()));
  if (!document.pickFirst.empty()) SetPickFirst(document, {});
}

}  // namespace

bool IsViewportAccepted(Document* document, const std::wstring& name, const std::wstring& value) {
  return name != L"CVPORT" || IsOnSheet(*document) || document->viewports.HasTile(NumberOf(value));
}

void UpdateCurrentSpace(Document& document, const std::wstring& name) {
  if (name != L"TILEMODE" && name != L"CVPORT") return;
  const bool sheet = IsOnSheet(document);
  std::wstring& port = document.variables[L"CVPORT"];
  if (name == L"TILEMODE") {
    port = std::to_wstring(sheet ? kSheetViewport : document.viewports.CurrentTile());
    document.variables[L"CTAB"] = sheet ? L"Layout1" : L"Model";
  }
  bool& paperIsCurrent = document.database()->body().paperIsCurrent;
  const bool before = std::exchange(paperIsCurrent, sheet && NumberOf(port) == kSheetViewport);
  bool viewIsValid = false;
  if (sheet) {
    document.viewports.ShowSheet(NumberOf(port));
  } else {
    viewIsValid = document.viewports.ShowTiles();
    // Undo can name a tile that is gone.
    if (!document.viewports.MakeCurrent(NumberOf(port)))
      port = std::to_wstring(document.viewports.CurrentTile());
  }
  if (paperIsCurrent != before) OnSpaceChanged(document, viewIsValid);
}

}  // namespace devhost
