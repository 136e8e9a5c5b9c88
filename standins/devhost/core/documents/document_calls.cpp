// The published document interfaces: the document manager, document locks, painting an entity.
#include "acdocman.h"
#include "axlock.h"
#include "devhost/core/host/host.h"

// Class descriptors.
ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocument, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocManager, AcRxObject)

AcApDocManager* acDocManagerPtr() { return &devhost::TheHost().documents; }

AcAxDocLock::AcAxDocLock()
    : m_document(acDocManagerPtr()->curDocument()),
      m_status(acDocManagerPtr()->lockDocument(m_document)) {}
AcAxDocLock::AcAxDocLock(AcDbDatabase* database, DocLockType)
    : m_document(acDocManagerPtr()->document(database)),
      m_status(acDocManagerPtr()->lockDocument(m_document)) {}
AcAxDocLock::~AcAxDocLock() {
  if (m_status == Acad::eOk) acDocManagerPtr()->unlockDocument(m_document);
}

// Views paint whole drawings, not single entities.
Acad::ErrorStatus AcDbEntity::draw() {
  auto& documents = devhost::TheHost().documents;
  devhost::Document* document = documents.FindDocument(documents.document(database()));
  if (!document) return Acad::eNoDocument;
  devhost::TheHost().Ui().PictureChanged(*document);
  return Acad::eOk;
}
