// The commands; see the header.
#include "document_commands.h"

#include <memory>

#include "acdocman.h"
#include "add_entity.h"
#include "adslib.h"
#include "dbapserv.h"
#include "symbol_entity.h"

namespace {

// A reference to a block of the drawing.
void DrawSymbol() {
  ads_point at{};
  ACHAR name[140] = L"", label[140] = L"";
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbBlockTable* blocks = nullptr;
  AcDbObjectId block;
  if (acedGetString(1, L"\n块名: ", name) != RTNORM || !database ||
      database->getBlockTable(blocks, AcDb::kForRead) != Acad::eOk)
    return;
  const bool found = blocks->getAt(name, block) == Acad::eOk;
  blocks->close();
  if (!found) {
    acutPrintf(L"\n没有块 %s。\n", name);
    return;
  }
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

}  // namespace

const DesignCommand kDocumentCommands[] = {
    {L"TSymbol", DrawSymbol},
    {L"TDocSwitch", SwitchActivation},
};
const int kDocumentCommandCount = sizeof kDocumentCommands / sizeof *kDocumentCommands;
