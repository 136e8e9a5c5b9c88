// Entities of unknown classes; see dbents.h. Their groups are kept as text, so that a drawing is
// saved as it was read.
#include "dbents.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbProxyEntity, AcDbEntity)

Acad::ErrorStatus AcDbProxyEntity::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  for (const Group& group : m_groups) filer->writeString(group.code, group.text.c_str());
  return Acad::eOk;
}
