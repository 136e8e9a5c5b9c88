// Undo steps; see the header.
#include "devhost/core/undo/undo.h"

#include <iterator>
#include <utility>

#include "devhost/core/drawing/database_body.h"
#include "devhost/core/host/host.h"

namespace devhost {
namespace {

void Record(Document& document, UndoChange change) {
  if (document.recording) document.recording->changes.push_back(std::move(change));
}

// Stores the data of an object before its first change in a step.
void RecordData(Document& document, AcDbObject* object) {
  if (!document.recording || !document.recording->recorded.insert(object).second) return;
  UndoChange change{UndoChange::Kind::Data, object, {}, {}, {}, {}};
  change.state = std::make_unique<ObjectState>(*object);
  Record(document, std::move(change));
}

void Revert(Document& document, const UndoChange& change) {
  switch (change.kind) {
    case UndoChange::Kind::Added:
      change.object->erase(true);
      break;
    case UndoChange::Kind::Erased:
      change.object->erase(false);
      break;
    case UndoChange::Kind::Moved:
      AcDbEntity::cast(change.object)->transformBy(change.back);
      break;
    case UndoChange::Kind::Data:
      change.state->Restore(*change.object);
      break;
    case UndoChange::Kind::Variable:
      RestoreVariable(document, change.name, change.value);
      break;
    case UndoChange::Kind::System: {
      AcDbDatabase::Body& body = document.database()->body();
      (change.ofPaper ? body.paperSystem : body.modelSystem) = change.system;
      break;
    }
  }
}

}  // namespace

UndoRecording::UndoRecording(Document& document, std::wstring name)
    : m_document(&document), m_step{std::move(name), {}}, m_outermost(!document.recording) {
  if (m_outermost) document.recording = &m_step;
}

UndoRecording::~UndoRecording() {
  // The drawing was closed.
  if (!m_outermost || !TheHost().documents.FindDocument(m_document)) return;
  m_document->recording = nullptr;
  if (!m_step.IsEmpty()) m_document->undo.push_back(std::move(m_step));
}

void ConnectUndo(Document& document) {
  AcDbDatabase::Body& body = document.database()->body();
  body.onAdded = [&document, &body](AcDbObject* object) {
    body.modified |= kObjectsModified;
    Record(document, {UndoChange::Kind::Added, object, {}, {}, {}, {}});
  };
  body.onErased = [&document, &body](AcDbObject* object) {
    body.modified |= kObjectsModified;
    Record(document, {UndoChange::Kind::Erased, object, {}, {}, {}, {}});
  };
  body.onMoved = [&document, &body](AcDbEntity* entity, const AcGeMatrix3d& by) {
    body.modified |= kObjectsModified;
    AcGeMatrix3d back;
    if (by.invert(&back)) Record(document, {UndoChange::Kind::Moved, entity, back, {}, {}, {}});
  };
  body.onChanging = [&document, &body](AcDbObject* object) {
    body.modified |= kObjectsModified;
    RecordData(document, object);
  };
}

void RecordVariableForUndo(Document& document, const std::wstring& name) {
  const auto at = document.variables.find(name);
  UndoChange change{UndoChange::Kind::Variable, nullptr, {}, {}, name, {}};
  if (at != document.variables.end()) change.value = at->second;
  Record(document, std::move(change));
}

void ChangeUserSystem(Document& document, const UserSystem& system) {
  AcDbDatabase::Body& body = document.database()->body();
  UndoChange change{UndoChange::Kind::System, nullptr, {}, {}, {}, {}};
  change.system = std::exchange(body.CurrentSystem(), system);
  change.ofPaper = body.paperIsCurrent;
  Record(document, std::move(change));
  body.modified |= kObjectsModified;
}

std::wstring UndoLatestStep(Document& document) {
  if (document.undo.empty()) return {};
  // Reverting is not recorded; later changes of the running command are.
  UndoStep* recording = std::exchange(document.recording, nullptr);
  const UndoStep step = std::move(document.undo.back());
  document.undo.pop_back();
  if (document.undoGroup > static_cast<int>(document.undo.size())) document.undoGroup = -1;
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
    Revert(document, *change);
  document.recording = recording;
  return step.command;
}

void DiscardUndo(Document& document) {
  document.undo.clear();
  if (document.undoGroup > 0) document.undoGroup = 0;
  if (!document.recording) return;
  document.recording->changes.clear();
  document.recording->recorded.clear();
}

void BeginUndoGroup(Document& document) {
  EndUndoGroup(document);
  document.undoGroup = static_cast<int>(document.undo.size());
}

void EndUndoGroup(Document& document) {
  if (document.undoGroup < 0) return;
  const std::size_t first = static_cast<std::size_t>(document.undoGroup);
  document.undoGroup = -1;
  if (document.undo.size() <= first + 1) return;
  std::vector<UndoChange>& all = document.undo[first].changes;
  for (std::size_t i = first + 1; i < document.undo.size(); ++i)
    std::move(document.undo[i].changes.begin(), document.undo[i].changes.end(),
              std::back_inserter(all));
  document.undo[first].command = L"GROUP";
  document.undo.resize(first + 1);
}

}  // namespace devhost
