// Layer, colour, linetype and extents of entities; see dbmain.h.
#include <cmath>

#include "adslib.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/view/scene.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbEntity, AcDbObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)

namespace {

void Replace(ACHAR*& text, const ACHAR* by) {
  acutDelString(text);
  acutNewString(by, text);
}

// The blocks of further sheets have the name of the first and a number.
bool IsOnSheet(const AcDbEntity& entity) {
  const AcDbObject* owner = entity.ownerId().object();
  if (const auto* reference = AcDbBlockReference::cast(owner))
    owner = reference->ownerId().object();
  const auto* space = AcDbBlockTableRecord::cast(owner);
  return space &&
         devhost::UpperCase(space->getName()).starts_with(devhost::UpperCase(ACDB_PAPER_SPACE));
}

}  // namespace

AcDbEntity::~AcDbEntity() {
  delete m_commonGroups;
  acutDelString(m_layer);
  acutDelString(m_linetype);
}

const ACHAR* AcDbEntity::layer() const { return m_layer ? m_layer : L"0"; }
const ACHAR* AcDbEntity::linetype() const { return m_linetype ? m_linetype : L"ByLayer"; }

Acad::ErrorStatus AcDbEntity::setLayer(const ACHAR* name) {
  if (!name || !*name) return Acad::eInvalidInput;
  Replace(m_layer, name);
  return Acad::eOk;
}
Acad::ErrorStatus AcDbEntity::setLinetype(const ACHAR* name) {
  if (!name || !*name) return Acad::eInvalidInput;
  Replace(m_linetype, name);
  return Acad::eOk;
}

bool AcDbEntity::subWorldDraw(AcGiWorldDraw*) const { return false; }
Acad::ErrorStatus AcDbEntity::subTransformBy(const AcGeMatrix3d&) {
  return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbEntity::transformBy(const AcGeMatrix3d& matrix) {
  const Acad::ErrorStatus status = subTransformBy(matrix);
  AcDbObjectAccess::NotifyWatcher(*this);
  if (status == Acad::eOk && database() && database()->body().onMoved)
    database()->body().onMoved(this, matrix);
  return status;
}

void AcDbEntity::recordGraphicsModified(bool setModified) {
  if (!setModified) return;
  AcDbObjectAccess::NotifyWatcher(*this);
  draw();
}

Acad::ErrorStatus AcDbEntity::getGeomExtents(AcDbExtents& extents) const {
  extents = AcDbExtents();
  for (const devhost::Shape& shape : devhost::ShapesOf(*const_cast<AcDbEntity*>(this), 1)) {
    for (const AcGePoint3d& p : shape.points) extents.addPoint(p);
    if (shape.kind == devhost::Shape::Kind::Text && !shape.points.empty()) {
      const double length =
          shape.height * shape.widthFactor * 0.8 * static_cast<double>(shape.text.size());
      const AcGeVector3d along(std::cos(shape.rotation), std::sin(shape.rotation), 0);
      const AcGeVector3d up(-along.y, along.x, 0);
      extents.addPoint(shape.points[0] + along * length);
      extents.addPoint(shape.points[0] + up * shape.height);
      extents.addPoint(shape.points[0] + along * length + up * shape.height);
    }
  }
  return extents.isValid() ? Acad::eOk : Acad::eNullExtents;
}

// The reader sets the shared groups itself (see SplitObject); derived classes call this before they
// read their own groups, as the published interface requires.
Acad::ErrorStatus AcDbEntity::dxfInFields(AcDbDxfFiler*) { return Acad::eOk; }

Acad::ErrorStatus AcDbEntity::dxfOutFields(AcDbDxfFiler* filer) const {
  filer->writeString(100, L"AcDbEntity");
  if (IsOnSheet(*this)) filer->writeInt(67, 1);
  filer->writeString(8, layer());
  if (m_linetype) filer->writeString(6, m_linetype);
  if (m_color != 256) filer->writeInt(62, m_color);
  if (m_commonGroups)
    for (const KeptGroup& group : *m_commonGroups)
      filer->writeString(group.code, group.text.c_str());
  return Acad::eOk;
}
