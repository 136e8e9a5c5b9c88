// The published exchange between the tiled viewports on the screen and the records of the viewport
// table.
#include "aced.h"
#include "dbsymtb.h"
#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"

using namespace devhost;

Acad::ErrorStatus acedVports2VportTableRecords() {
  Document* document = TheHost().documents.Current();
  if (!document) return Acad::eNoDocument;
  AcDbViewportTable* table = nullptr;
  const Acad::ErrorStatus status = document->database()->getViewportTable(table, AcDb::kForWrite);
  if (status != Acad::eOk) return status;
  const std::vector<TilePlace> tiles = document->viewports.Tiles();
  AcDbViewportTableAccess::SetCount(*table, tiles.size());
  for (std::size_t i = 0; i < tiles.size(); ++i) {
    AcDbViewportTableRecord& record = AcDbViewportTableAccess::At(*table, i);
    AcDbViewportTableAccess::SetNumber(record, tiles[i].number);
    record.setLowerLeftCorner({tiles[i].place.left, tiles[i].place.bottom});
    record.setUpperRightCorner({tiles[i].place.right, tiles[i].place.top});
  }
  return table->close();
}

Acad::ErrorStatus acedVportTableRecords2Vports() {
  Document* document = TheHost().documents.Current();
  if (!document) return Acad::eNoDocument;
  AcDbViewportTable* table = nullptr;
  const Acad::ErrorStatus status = document->database()->getViewportTable(table, AcDb::kForRead);
  if (status != Acad::eOk) return status;
  std::vector<TilePlace> tiles;
  for (std::size_t i = 0; i < AcDbViewportTableAccess::Count(*table); ++i) {
    const AcDbViewportTableRecord& record = AcDbViewportTableAccess::At(*table, i);
    const AcGePoint2d a = record.lowerLeftCorner(), b = record.upperRightCorner();
    tiles.push_back({record.number(), {a.x, a.y, b.x, b.y}});
  }
  table->close();
  if (!document->viewports.SetTiles(tiles)) return Acad::eInvalidInput;
  if (document->variables[L"CVPORT"] != std::to_wstring(document->viewports.CurrentNumber()))
    TheHost().variables.Set(L"CVPORT", std::to_wstring(document->viewports.CurrentNumber()));
  TheHost().Ui().ViewChanged(*document);
  return Acad::eOk;
}
