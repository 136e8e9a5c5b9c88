// References to blocks that the family draws: symbols from its library (QVX_BLOCK_INSERT) and
// components that are drawn differently in each view (QVX_MVINSERT; only the plan is drawn here).
// A reference has a caption below its insertion point, stored as extended data.
#pragma once

#include "dbents.h"
#include "kernel/kernel_export.h"
#include "kernel/tdbentity.h"
#include "kernel/text_place.h"

class QVX_KERNEL TDbBlockInsert : public AcDbBlockReference, public TDbEntity {
 public:
  ACRX_DECLARE_MEMBERS(TDbBlockInsert);
  TDbBlockInsert() = default;
  TDbBlockInsert(const AcGePoint3d& at, AcDbObjectId blockRecord)
      : AcDbBlockReference(at, blockRecord) {}

  std::wstring Caption() const;
  void SetCaption(const std::wstring& caption);

  Adesk::Boolean IsEditable() const override { return true; }
  TSubText* GetSubText(int index) const override { return MakeSubText(*this, index); }
  TSubText* GetSubTextAt(const AcGePoint3d& at) const override { return MakeSubTextAt(*this, at); }
  std::vector<QvxTextPlace> SubTexts() const override;
  void ChangeSubText(int index, const std::wstring& text) override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};

class QVX_KERNEL TDbMvInsert : public TDbBlockInsert {
 public:
  ACRX_DECLARE_MEMBERS(TDbMvInsert);
  TDbMvInsert() = default;
  TDbMvInsert(const AcGePoint3d& at, AcDbObjectId blockRecord) : TDbBlockInsert(at, blockRecord) {}
};
