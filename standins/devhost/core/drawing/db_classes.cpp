// The list of all database classes of the host. A class that is missing here is read from drawings
// as opaque entities.
#include "devhost/core/drawing/db_classes.h"

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

void RegisterDatabaseClasses() {
  AcDbLayerTableRecord::rxInit();
  AcDbBlockTableRecord::rxInit();
  AcDbLayerTable::rxInit();
  AcDbBlockTable::rxInit();
  AcDbLine::rxInit();
  AcDbCircle::rxInit();
  AcDbArc::rxInit();
  AcDbEllipse::rxInit();
  AcDbPoint::rxInit();
  AcDbTrace::rxInit();
  AcDbFace::rxInit();
  AcDbPolyline::rxInit();
  AcDb2dPolyline::rxInit();
  AcDbText::rxInit();
  AcDbAttribute::rxInit();
  AcDbAttributeDefinition::rxInit();
  AcDbMText::rxInit();
  AcDbBlockReference::rxInit();
  AcDbDimension::rxInit();
  AcDbViewport::rxInit();
  AcDbProxyEntity::rxInit();
}

}  // namespace devhost
