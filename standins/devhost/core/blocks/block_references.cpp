// The published iterator over the references to a block.
#include "dbents.h"
#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"

Acad::ErrorStatus AcDbBlockTableRecord::newBlockReferenceIdIterator(
    AcDbBlockReferenceIdIterator*& iterator) const {
  iterator = nullptr;
  if (!database()) return Acad::eNotApplicable;
  std::vector<AcDbObjectId> ids;
  for (const auto& object : database()->body().objects) {
    const auto* reference = AcDbBlockReference::cast(object.get());
    // Without an owner it was never added to a block.
    if (reference && !reference->ownerId().isNull() && reference->blockTableRecord() == objectId())
      ids.push_back(reference->objectId());
  }
  iterator = new AcDbBlockReferenceIdIterator(std::move(ids));
  return Acad::eOk;
}

void AcDbBlockReferenceIdIterator::start() {
  m_at = 0;
  skip();
}

void AcDbBlockReferenceIdIterator::step() {
  ++m_at;
  skip();
}

void AcDbBlockReferenceIdIterator::skip() {
  while (m_at < m_ids.size() && m_ids[m_at].isErased()) ++m_at;
}

Acad::ErrorStatus AcDbBlockReferenceIdIterator::getBlockReferenceId(AcDbObjectId& id) const {
  if (done()) return Acad::eKeyNotFound;
  id = m_ids[m_at];
  return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReferenceIdIterator::getBlockReference(AcDbBlockReference*& reference,
                                                                  AcDb::OpenMode mode,
                                                                  bool openErased) const {
  reference = nullptr;
  if (done()) return Acad::eKeyNotFound;
  return acdbOpenObject(reference, m_ids[m_at], mode, openErased);
}
