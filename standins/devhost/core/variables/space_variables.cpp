// Model space and paper space; see the header.
#include "devhost/core/variables/space_variables.h"

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"
#include "devhost/core/selection/selection.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

// Selection and view belong to the other space.
void OnSpaceChanged(Document& document) {
  document.view.ZoomTo(ExtentsOf(*document.database()));
  if (!document.pickFirst.empty()) SetPickFirst(document, {});
}

}  // namespace

void UpdateCurrentSpace(Document& document, const std::wstring& name, const std::wstring& value) {
  if (name == L"TILEMODE") {
    document.variables[L"CVPORT"] = value == L"0" ? L"1" : L"2";
    document.variables[L"CTAB"] = value == L"0" ? L"Layout1" : L"Model";
  }
  if (name != L"TILEMODE" && name != L"CVPORT") return;
  const auto tile = document.variables.find(L"TILEMODE");
  const bool paper = tile != document.variables.end() && tile->second == L"0";
  bool& current = document.database()->body().paperIsCurrent;
  const bool before = current;
  current = paper && document.variables[L"CVPORT"] == L"1";
  if (current != before) OnSpaceChanged(document);
}

}  // namespace devhost
