// The commands; see the header.
#include "document_commands.h"

#include <memory>

#include "acdocman.h"
#include "add_entity.h"
#include "adslib.h"
#include "symbol_entity.h"

// A reference to a block of the drawing.
void DrawSymbol() {
  ads_point at{};
  ACHAR name[140] = L"", label[140] = L"";
  if (acedGetString(1, L"\n块名: ", name) != RTNORM) return;
  const AcDbObjectId block = FindBlock(name);
  if (block.isNull()) return;
  if (acedGetPoint(nullptr, L"\n插入点: ", at) != RTNORM) return;
  auto symbol = std::make_unique<QvxDbSymbol>(WorldPoint(at), block);
  if (acedGetString(1, L"\n标注: ", label) == RTNORM) symbol->label = label;
  AddEntity(std::move(symbol), L"0", 7);
}

// Switches between disabling and enabling the activation of other drawings.
void SwitchActivation() {
  const bool enabled = acDocManager->isDocumentActivationEnabled();
  enabled ? acDocManager->disableDocumentActivation() : acDocManager->enableDocumentActivation();
  acutPrintf(enabled ? L"\n已禁止切换图形。\n" : L"\n已允许切换图形。\n");
}
