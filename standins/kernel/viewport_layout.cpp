#include "kernel/viewport_layout.h"

#include <algorithm>
#include <memory>

#include "aced.h"
#include "acdocman.h"
#include "adslib.h"
#include "dbsymtb.h"

namespace {

template <class F>
bool ForEachOnScreen(AcDb::OpenMode mode, F call) {
  AcApDocument* document = acDocManagerPtr()->curDocument();
  AcDbViewportTable* table = nullptr;
  if (!document || document->database()->getViewportTable(table, AcDb::kForRead) != Acad::eOk)
    return false;
  AcDbViewportTableIterator* made = nullptr;
  table->newIterator(made);
  table->close();
  const std::unique_ptr<AcDbViewportTableIterator> at(made);
  for (; at && !at->done(); at->step()) {
    AcDbViewportTableRecord* record = nullptr;
    if (at->getRecord(record, mode) != Acad::eOk) return false;
    const ACHAR* name = nullptr;
    if (record->getName(name) == Acad::eOk && acutWcMatch(name, L"`*Active") == RTNORM)
      call(*record);
    record->close();
  }
  return true;
}

}  // namespace

bool ReadLayout(std::vector<ViewportTile>& tiles) {
  tiles.clear();
  if (acedVports2VportTableRecords() != Acad::eOk) return false;
  return ForEachOnScreen(AcDb::kForRead, [&](const AcDbViewportTableRecord& record) {
    const AcGePoint2d a = record.lowerLeftCorner(), b = record.upperRightCorner();
    tiles.push_back({record.number(), a.x, a.y, b.x, b.y});
  });
}

bool WriteLayout(const std::vector<ViewportTile>& tiles) {
  const bool written = ForEachOnScreen(AcDb::kForWrite, [&](AcDbViewportTableRecord& record) {
    const auto tile = std::find_if(tiles.begin(), tiles.end(), [&](const ViewportTile& each) {
      return each.number == record.number();
    });
    if (tile == tiles.end()) return;
    record.setLowerLeftCorner({tile->left, tile->bottom});
    record.setUpperRightCorner({tile->right, tile->top});
  });
  return written && acedVportTableRecords2Vports() == Acad::eOk;
}
