#include "statusbar/drawing_scale_change.h"

#include <optional>
#include <vector>

#include "axlock.h"
#include "dbapserv.h"
#include "dbsymtb.h"
#include "ground/host_variables.h"
#include "kernel/drawing_scale.h"
#include "kernel/entities/tdbdimension2.h"
#include "kernel/globals.h"
#include "kernel/tacdbobjectptr.h"
#include "kernel/tdbconfig.h"
#include "kernel/tpickentset.h"
#include "kernel/trblist.h"
#include "statusbar/scale_rules.h"
#include "statusbar/status_bar_door.h"

namespace qvx {
namespace {

constexpr short kTypeName = 0, kApplicationName = 1001, kReal = 1040;

// The pick-first objects named QVX_*.
class FamilySelection {
 public:
  FamilySelection() {
    TRBList filter;
    filter.AppendString(kTypeName, L"QVX_*");
    m_found = m_set.Get(L"I", nullptr, nullptr, filter.Head()) == RTNORM;
  }
  explicit operator bool() const { return m_found; }
  int Length() const { return m_found ? m_set.Length() : 0; }
  TEntitySet operator[](int index) const { return m_set[index]; }

 private:
  TPickEntSet m_set{TPickEntSet::kOwned};
  bool m_found;
};

class LockInApplicationContext {
 public:
  LockInApplicationContext() {
    if (acDocManagerPtr()->isApplicationContext()) m_lock.emplace();
  }

 private:
  std::optional<AcAxDocLock> m_lock;
};

void ScaleDimension(TDbDimension2& dimension, double scale) {
  if (dimension.IsAngular())
    dimension.SetDimRadius(DimRadiusAt(dimension.GetDimRadius(), dimension.GetDist2DimLine(1),
                                       scale, dimension.GetPScale()));
  dimension.SetPScale(scale);
  if (g_nDimAdjust != 0) dimension.AdjustDim(g_nDimAdjust != 2, 1, 1);
}

// A QVX_* object without a scale is only redrawn.
void ScaleEntity(AcDbObjectId id, double scale) {
  const TAcDbObjectPtr<AcDbEntity> entity(id, AcDb::kForWrite);
  if (!entity) return;
  if (auto* dimension = TDbDimension2::cast(entity.Get()))
    ScaleDimension(*dimension, scale);
  else if (TEntityBase* base = TEntityBase::Cast(entity.Get()))
    base->SetPScale(scale);
  entity->downgradeOpen();
  entity->draw();
}

// True in paper space when no viewport is entered.
bool WorksOnSheet() {
  return ShortVariable(L"TILEMODE").value_or(1) == 0 && ShortVariable(L"CVPORT").value_or(2) == 1;
}

void SetScaleOfSheet(double scale) {
  AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
  AcDbBlockTable* blocks = nullptr;
  if (!database || database->getSymbolTable(blocks, AcDb::kForRead) != Acad::eOk) return;
  AcDbObjectId id;
  const Acad::ErrorStatus found = blocks->getIdAt(ACDB_PAPER_SPACE, id);
  blocks->close();
  if (found != Acad::eOk) return;
  const TAcDbObjectPtr<AcDbBlockTableRecord> sheet(id, AcDb::kForWrite);
  if (!sheet) return;
  TRBList data;
  data.AppendString(kApplicationName, kPaperScaleApplication);
  data.AppendReal(kReal, scale);
  sheet->setXData(data.Head());
}

}  // namespace

void SetScale(double scale) {
  const FamilySelection selection;
  if (!selection) return SetDrawingScale(scale);
  const LockInApplicationContext lock;
  for (int i = 0; i < selection.Length(); ++i) ScaleEntity(selection[i].ObjectId(), scale);
  for (int i = 0; i < selection.Length(); ++i) acedRedraw(selection[i].Name(), 0);
}

// Deliberate: paper space takes any number, zero and below too, and the pane shows it; model space
// ignores them without a message.
void SetDrawingScale(double scale) {
  const LockInApplicationContext lock;
  if (WorksOnSheet()) return SetScaleOfSheet(scale);
  TDbConfig* config = GetDwgGlobal(AcDb::kForWrite, QvxGeLib::g_pCurrentDb);
  if (!config) return;
  if (DrawingTakesScale(scale)) config->SetPScale(scale);
  config->close();
}

bool HasFamilySelection() { return static_cast<bool>(FamilySelection()); }

TWCString CurrentScaleText() {
  const FamilySelection selection;
  ScaleWalk walk;
  for (int i = 0; i < selection.Length(); ++i) {
    const TAcDbObjectPtr<AcDbEntity> entity(selection[i].ObjectId(), AcDb::kForRead);
    const TEntityBase* base = TEntityBase::Cast(entity.Get());
    if (base && !walk.Take(base->GetPScale())) break;
  }
  return ScalePaneText(DocGetPScale(), walk);
}

void WriteHatchScale() { SetRealVariable(L"HPSCALE", DocGetPScale()); }

}  // namespace qvx
