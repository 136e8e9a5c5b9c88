// What code does to an object after it changed it: gives up writing, and has it painted.
#include "dbmain.h"
#include "devhost/core/host/host.h"

Acad::ErrorStatus AcDbObject::downgradeOpen() {
  return m_openCount > 0 ? Acad::eOk : Acad::eNotOpenForWrite;
}

// A view paints whole drawings, so there is nothing smaller to ask for.
Acad::ErrorStatus AcDbEntity::draw() {
  auto& documents = devhost::TheHost().documents;
  devhost::Document* document = documents.Known(documents.document(database()));
  if (!document) return Acad::eNoDocument;
  devhost::TheHost().Ui().PictureChanged(*document);
  return Acad::eOk;
}
