// The record that all drawing objects of the family share; see the header.
#include "kernel/entities/qvx_entity.h"

#include "kernel/entities/block_inserts.h"
#include "kernel/entities/class_registration.h"
#include "kernel/entities/tdbdimension2.h"
#include "kernel/entities/tdbinsight.h"
#include "kernel/tdbconfig.h"
#include "kernel/tdbfloorrect.h"
#include "kernel/text_lines.h"

#include <cmath>
#include <numbers>

namespace {
constexpr double kDegree = std::numbers::pi / 180;
}

ACRX_NO_CONS_DEFINE_MEMBERS(QvxDbEntity, AcDbEntity)
ACRX_DXF_DEFINE_MEMBERS(QvxDbWall, QvxDbEntity, 0, 0, 0, QVX_WALL, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbOpening, QvxDbEntity, 0, 0, 0, QVX_OPENING, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbColumn, QvxDbEntity, 0, 0, 0, QVX_COLUMN, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbAxisNumber, QvxDbEntity, 0, 0, 0, QVX_AXNO, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbText, QvxDbEntity, 0, 0, 0, QVX_TEXT, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbMText, QvxDbText, 0, 0, 0, QVX_MTEXT, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbStair, QvxDbEntity, 0, 0, 0, QVX_STAIR, qvx_kernal)
ACRX_DXF_DEFINE_MEMBERS(QvxDbSpace, QvxDbEntity, 0, 0, 0, QVX_SPACE, qvx_kernal)

ACRX_DXF_DEFINE_MEMBERS(TDbFloorRect, QvxDbEntity, 0, 0, 0, QVX_FLOORRECT, qvx_kernal)

Acad::ErrorStatus QvxDbEntity::subTransformBy(const AcGeMatrix3d& matrix) {
  start = matrix * start;
  end = matrix * end;
  angle += matrix.rotation();
  for (AcGePoint3d& corner : outline) corner = matrix * corner;
  return Acad::eOk;
}

Acad::ErrorStatus QvxDbEntity::dxfInFields(AcDbDxfFiler* filer) {
  AcDbEntity::dxfInFields(filer);
  label.clear();
  outline.clear();
  cells.clear();
  group = control = 0;
  bool hasEnd = false;
  resbuf item{};
  while (filer->readItem(&item) == Acad::eOk) {
    const AcGePoint3d point(item.resval.rpoint[0], item.resval.rpoint[1], item.resval.rpoint[2]);
    switch (item.restype) {
      case 1:
        label = TextFromFile(item.resval.rstring);
        break;
      case 10:
        if (HasOutline()) outline.push_back(point);
        start = point;
        break;
      case 11:
        end = point;
        hasEnd = true;
        break;
      case 40:
        width = item.resval.rreal;
        break;
      case 41:
        size = item.resval.rreal;
        break;
      case 42:
        SetPScale(item.resval.rreal);
        break;
      case 50:
        angle = item.resval.rreal * kDegree;
        break;
      case 70:
        kind = item.resval.rint;
        break;
      case 71:
        flags = item.resval.rint;
        break;
      case 72:
        group = item.resval.rint;
        break;
      case 73:
        control = item.resval.rint;
        break;
      case 302:
        cells.push_back(TextFromFile(item.resval.rstring));
        break;
      default:
        break;
    }
  }
  if (!hasEnd) end = start;  // an object with one control point
  return Acad::eOk;
}

Acad::ErrorStatus QvxDbEntity::dxfOutFields(AcDbDxfFiler* filer) const {
  AcDbEntity::dxfOutFields(filer);
  filer->writeString(100, isA()->name());
  if (!label.empty()) filer->writeString(1, TextToFile(label).c_str());
  filer->writeDouble(42, m_pscale);
  if (group) filer->writeInt(72, group);
  if (control) filer->writeInt(73, control);
  for (const std::wstring& cell : cells) filer->writeString(302, TextToFile(cell).c_str());
  if (HasOutline()) {
    filer->writeInt(90, static_cast<int>(outline.size()));
    for (const AcGePoint3d& corner : outline) filer->writePoint(10, corner);
    return Acad::eOk;
  }
  filer->writePoint(10, start);
  filer->writePoint(11, end);
  filer->writeDouble(40, width);
  filer->writeDouble(41, size);
  filer->writeDouble(50, angle / kDegree);
  filer->writeInt(70, kind);
  return filer->writeInt(71, flags);
}

double QvxDbSpace::Area() const {
  double twice = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const AcGePoint3d &a = outline[i], &b = outline[(i + 1) % outline.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return std::fabs(twice) / 2;
}

AcGePoint3d QvxDbSpace::Middle() const {
  AcDbExtents box;
  for (const AcGePoint3d& corner : outline) box.addPoint(corner);
  return {(box.minPoint().x + box.maxPoint().x) / 2, (box.minPoint().y + box.maxPoint().y) / 2, 0};
}

void BeginQvxEntities() {
  RegisterClasses<QvxDbEntity, QvxDbWall, QvxDbOpening, QvxDbColumn, QvxDbAxisNumber, QvxDbText,
                  QvxDbMText, QvxDbStair, TDbDimension2, QvxDbSpace, TDbFloorRect, TDbInSight,
                  TDbBlockInsert, TDbMvInsert>();
  acrxBuildClassHierarchy();
}

void EndQvxEntities() {
  RemoveClasses<TDbConfig, TDbMvInsert, TDbBlockInsert, TDbInSight, TDbFloorRect, QvxDbSpace,
                TDbDimension2, QvxDbStair, QvxDbMText, QvxDbText, QvxDbAxisNumber, QvxDbColumn,
                QvxDbOpening, QvxDbWall, QvxDbEntity>();
}
