// QVX_SYMBOL: a block reference with a label. Its class is derived from the host's block reference,
// so a test for exactly that class does not include it.
#pragma once

#include <string>

#include "dbents.h"

class QvxDbSymbol : public AcDbBlockReference {
 public:
  ACRX_DECLARE_MEMBERS(QvxDbSymbol);
  QvxDbSymbol() = default;
  QvxDbSymbol(const AcGePoint3d& at, AcDbObjectId blockRecord)
      : AcDbBlockReference(at, blockRecord) {}
  std::wstring label;  // group 1
  Acad::ErrorStatus dxfInFields(AcDbDxfFiler* filer) override;
  Acad::ErrorStatus dxfOutFields(AcDbDxfFiler* filer) const override;
};

void BeginSymbolEntity();
void EndSymbolEntity();
