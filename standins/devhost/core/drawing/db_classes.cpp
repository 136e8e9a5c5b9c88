// The list of all database classes of the host. A class that is missing here is read from drawings
// as opaque entities.
#include "devhost/core/drawing/db_classes.h"

#include <algorithm>
#include <iterator>

#include "dbents.h"
#include "dbsymtb.h"

namespace devhost {

namespace {

using ClassOf = AcRxClass* (*)();

// desc() also registers the class.
constexpr ClassOf kClasses[] = {
    AcDbLayerTableRecord::desc,
    AcDbBlockTableRecord::desc,
    AcDbLayerTable::desc,
    AcDbBlockTable::desc,
    AcDbLine::desc,
    AcDbCircle::desc,
    AcDbArc::desc,
    AcDbEllipse::desc,
    AcDbPoint::desc,
    AcDbTrace::desc,
    AcDbFace::desc,
    AcDbPolyline::desc,
    AcDb2dPolyline::desc,
    AcDbText::desc,
    AcDbAttribute::desc,
    AcDbAttributeDefinition::desc,
    AcDbMText::desc,
    AcDbBlockReference::desc,
    AcDbDimension::desc,
    AcDbViewport::desc,
    AcDbProxyEntity::desc,
};

}  // namespace

void RegisterDatabaseClasses() {
  for (ClassOf cls : kClasses) cls();
}

bool IsHostClass(const AcRxClass& cls) {
  return &cls != AcDbProxyEntity::desc() &&
         std::any_of(std::begin(kClasses), std::end(kClasses),
                     [&](ClassOf known) { return known() == &cls; });
}

}  // namespace devhost
