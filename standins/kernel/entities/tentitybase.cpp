#include "kernel/entities/tentitybase.h"

#include <cmath>

#include "kernel/entities/qvx_entity.h"

TEntityBase::~TEntityBase() = default;

TEntityBase* TEntityBase::Cast(AcRxObject* object) { return QvxDbEntity::cast(object); }

void TEntityBase::SetPScale(double scale) {
  if (std::isfinite(scale)) m_pscale = scale;
}

bool TEntityBase::AcceptsPointer(const AcGePoint3d&) const { return true; }

long TEntityBase::GroupKey() const { return 0; }

void TEntityBase::ToggleCtrl() {}

double TEntityBase::ScaleFactor() const { return m_pscale > 0 ? m_pscale / kDefaultScale : 1; }
