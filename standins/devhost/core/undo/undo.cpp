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

std::optional<std::wstring> ValueOf(const Document& document, const std::wstring& name) {
  const auto at = document.variables.find(name);
  return at == document.variables.end() ? std::nullopt : std::optional(at->second);
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

// The change that takes back the reverting of a change; call it before that.
UndoChange InverseOf(Document& document, const UndoChange& change) {
  UndoChange inverse{change.kind, change.object, {}, {}, change.name, {}};
  switch (change.kind) {
    case UndoChange::Kind::Added:
      inverse.kind = UndoChange::Kind::Erased;
      break;
    case UndoChange::Kind::Erased:
      inverse.kind = UndoChange::Kind::Added;
      break;
    case UndoChange::Kind::Moved:
      change.back.invert(&inverse.back);
      break;
    case UndoChange::Kind::Data:
      inverse.state = std::make_unique<ObjectState>(*change.object);
      break;
    case UndoChange::Kind::Variable:
      inverse.value = ValueOf(document, change.name);
      break;
    case UndoChange::Kind::System: {
      const AcDbDatabase::Body& body = document.database()->body();
      inverse.ofPaper = change.ofPaper;
      inverse.system = change.ofPaper ? body.paperSystem : body.modelSystem;
      break;
    }
  }
  return inverse;
}

// Reverts a step without recording and returns the step that takes this back. Later changes of the
// running command are recorded.
UndoStep RevertStep(Document& document, const UndoStep& step) {
  UndoStep* recording = std::exchange(document.recording, nullptr);
  UndoStep inverse{step.command, {}};
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
    inverse.changes.push_back(InverseOf(document, *change));
    Revert(document, *change);
  }
  document.recording = recording;
  document.locksJoin = false;
  document.database()->body().modified |= kObjectsModified;
  return inverse;
}

void Join(UndoStep& step, UndoStep& later) {
  std::move(later.changes.begin(), later.changes.end(), std::back_inserter(step.changes));
}

}  // namespace

UndoRecording::UndoRecording(Document& document, std::wstring name, Kind kind)
    : m_document(&document),
      m_step{std::move(name), {}},
      m_kind(kind),
      m_outermost(!document.recording) {
  if (!m_outermost) return;
  document.recording = &m_step;
  if (kind != Kind::Lock) document.locksJoin = false;
}

UndoRecording::~UndoRecording() {
  // The drawing was closed.
  if (!m_outermost || !TheHost().documents.FindDocument(m_document)) return;
  m_document->recording = nullptr;
  if (m_step.IsEmpty()) return;
  m_document->redo.clear();
  if (m_kind == Kind::Lock && m_document->locksJoin && !m_document->undo.empty())
    Join(m_document->undo.back(), m_step);
  else
    m_document->undo.push_back(std::move(m_step));
  m_document->locksJoin = m_kind == Kind::Lock;
}

void EndLockSteps() {
  for (const auto& document : TheHost().documents.All()) document->locksJoin = false;
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
  UndoChange change{UndoChange::Kind::Variable, nullptr, {}, {}, name, {}};
  change.value = ValueOf(document, name);
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
  const UndoStep step = std::move(document.undo.back());
  document.undo.pop_back();
  if (document.undoGroup > static_cast<int>(document.undo.size())) document.undoGroup = -1;
  document.redo.push_back(RevertStep(document, step));
  return step.command;
}

std::wstring RedoLatestStep(Document& document) {
  if (document.redo.empty()) return {};
  const UndoStep step = std::move(document.redo.back());
  document.redo.pop_back();
  document.undo.push_back(RevertStep(document, step));
  return step.command;
}

void DiscardUndo(Document& document) {
  document.undo.clear();
  document.redo.clear();
  document.locksJoin = false;
  if (document.undoGroup > 0) document.undoGroup = 0;
  if (!document.recording) return;
  document.recording->changes.clear();
  document.recording->recorded.clear();
}

void BeginUndoGroup(Document& document) {
  EndUndoGroup(document);
  document.undoGroup = static_cast<int>(document.undo.size());
  document.locksJoin = false;
}

void EndUndoGroup(Document& document) {
  if (document.undoGroup < 0) return;
  const std::size_t first = static_cast<std::size_t>(document.undoGroup);
  document.undoGroup = -1;
  if (document.undo.size() <= first + 1) return;
  for (std::size_t i = first + 1; i < document.undo.size(); ++i)
    Join(document.undo[first], document.undo[i]);
  document.undo[first].command = L"GROUP";
  document.undo.resize(first + 1);
}

}  // namespace devhost
