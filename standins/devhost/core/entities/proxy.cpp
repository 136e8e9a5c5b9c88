// Entities of classes that nobody here knows; see dbents.h. The drawing reader hands their groups
// over as text, without reading numbers, so that saving writes what came.
#include "dbents.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbProxyEntity, AcDbEntity)

Acad::ErrorStatus AcDbProxyEntity::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  for (const Group& group : m_groups) filer->writeString(group.code, group.text.c_str());
  return Acad::eOk;
}
