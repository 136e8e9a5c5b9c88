// Names of entities in drawing files; see the header.
#include "devhost/core/entities/dxf_name.h"

#include "dbents.h"

namespace devhost {

const ACHAR* DxfNameOf(const AcDbEntity& entity) {
  if (const auto* proxy = AcDbProxyEntity::cast(&entity)) return proxy->originalDxfName();
  const ACHAR* name = entity.isA()->dxfName();
  return name ? name : L"";
}

}  // namespace devhost
