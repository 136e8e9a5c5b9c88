// Snapshots; see the header.
#include "devhost/core/undo/object_state.h"

#include "adslib.h"
#include "devhost/core/drawing/database_body.h"

namespace devhost {

ObjectState::ObjectState(const AcDbObject& object) : m_xdata(object.xData()) {
  UndoOutFiler filer(object.database(), m_items);
  object.dxfOutFields(&filer);
  const AcDbEntity* entity = AcDbEntity::cast(&object);
  if (!entity) return;
  m_layer = entity->layer();
  m_linetype = entity->linetype();
  m_hasLinetype = AcDbObjectAccess::HasLinetype(*entity);
  m_color = entity->colorIndex();
}

ObjectState::~ObjectState() { acutRelRb(m_xdata); }

void ObjectState::Restore(AcDbObject& object) const {
  UndoInFiler filer(object.database(), m_items);
  object.dxfInFields(&filer);
  AcDbObjectAccess::SetXData(object, m_xdata);
  AcDbObjectAccess::NotifyWatcher(object);
  AcDbEntity* entity = AcDbEntity::cast(&object);
  if (!entity) return;
  entity->setLayer(m_layer.c_str());
  if (m_hasLinetype)
    entity->setLinetype(m_linetype.c_str());
  else
    AcDbObjectAccess::ClearLinetype(*entity);
  entity->setColorIndex(m_color);
}

}  // namespace devhost
