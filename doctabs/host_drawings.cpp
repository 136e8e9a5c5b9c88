#include "doctabs/host_drawings.h"

#include <memory>

#include "acdocman.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "ground/command_line.h"
#include "kernel/qvxexport.h"

namespace {

// An object opened for reading, closed at the end of its scope.
template <class T>
class Opened {
 public:
  Opened() = default;
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
  ~Opened() {
    if (m_object) m_object->close();
  }
  T*& Out() { return m_object; }
  T* operator->() const { return m_object; }

 private:
  T* m_object = nullptr;
};

bool OpenModelSpace(AcDbDatabase& database, Opened<AcDbBlockTableRecord>& space) {
  Opened<AcDbBlockTable> table;
  AcDbObjectId id;
  return database.getBlockTable(table.Out(), AcDb::kForRead) == Acad::eOk &&
         table->getAt(ACDB_MODEL_SPACE, id) == Acad::eOk &&
         acdbOpenObject(space.Out(), id, AcDb::kForRead) == Acad::eOk;
}

// Exactly the class: a class derived from the block reference is an object of its own.
bool IsPlainBlockReference(const AcDbEntity& entity) {
  return entity.isA() == AcDbBlockReference::desc();
}

}  // namespace

AcApDocument* HostDrawings::Current() {
  return acDocManager ? acDocManager->curDocument() : nullptr;
}

AcApDocument* HostDrawings::MdiActive() {
  return acDocManager ? acDocManager->mdiActiveDocument() : nullptr;
}

int HostDrawings::Count() { return acDocManager ? acDocManager->documentCount() : 0; }

std::vector<AcApDocument*> HostDrawings::Documents() {
  std::vector<AcApDocument*> documents;
  if (!acDocManager) return documents;
  const std::unique_ptr<AcApDocumentIterator> at(acDocManager->newAcApDocumentIterator());
  for (; at && !at->done(); at->step()) documents.push_back(at->document());
  return documents;
}

CString HostDrawings::FileName(AcApDocument* document) { return document->fileName(); }

std::optional<int> HostDrawings::CountOtherThanBlocks(AcApDocument* document) {
  AcDbDatabase* database = document->database();
  Opened<AcDbBlockTableRecord> space;
  AcDbBlockTableRecordIterator* iterator = nullptr;
  if (!database || !OpenModelSpace(*database, space) || space->newIterator(iterator) != Acad::eOk)
    return std::nullopt;
  const std::unique_ptr<AcDbBlockTableRecordIterator> at(iterator);
  int count = 0;
  for (; !at->done(); at->step()) {
    Opened<AcDbEntity> entity;
    if (at->getEntity(entity.Out(), AcDb::kForRead) != Acad::eOk ||
        !IsPlainBlockReference(*entity.Out()))
      ++count;
  }
  return count;
}

void HostDrawings::ClearModified(AcApDocument* document) { acdbSetDbmod(document->database(), 0); }

void HostDrawings::Close(AcApDocument* document) { acDocManager->closeDocument(document); }

void HostDrawings::Activate(AcApDocument* document) { acDocManager->activateDocument(document); }

void HostDrawings::Post(const wchar_t* text) { qvx::SendToHost(text); }

CString HostDrawings::FullCommandName(const wchar_t* name) {
  const TWCString full = QvxExport::GetFullCmdName(name);
  return CString(static_cast<const wchar_t*>(full));
}

bool MayActivateDrawings() { return acDocManager && acDocManager->isDocumentActivationEnabled(); }
