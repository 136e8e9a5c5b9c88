#include "kernel/entities/tentitybase.h"

#include <cmath>

#include "kernel/entities/qvx_entity.h"

TEntityBase::~TEntityBase() = default;

TEntityBase* TEntityBase::Cast(AcRxObject* object) { return QvxDbEntity::cast(object); }

double TEntityBase::ScaleFactor() const {
  return m_pscale > 0 && std::isfinite(m_pscale) ? m_pscale / kDefaultScale : 1;
}
