// Undo steps; see the header.
#include "devhost/core/undo.h"

#include "devhost/core/database_body.h"
#include "devhost/core/host.h"

namespace devhost {
namespace {

void Append(UndoStep& to, const UndoStep& from) {
  to.added.insert(to.added.end(), from.added.begin(), from.added.end());
  to.erased.insert(to.erased.end(), from.erased.begin(), from.erased.end());
  to.moved.insert(to.moved.end(), from.moved.begin(), from.moved.end());
}

}  // namespace

UndoRecording::UndoRecording(Document& document, std::wstring name)
    : m_document(&document), m_step{std::move(name), {}, {}, {}}, m_own(!document.recording) {
  if (m_own) document.recording = &m_step;
}

UndoRecording::~UndoRecording() {
  if (!m_own || !TheHost().documents.Known(m_document)) return;  // CLOSE took the drawing along
  m_document->recording = nullptr;
  if (!m_step.IsEmpty()) m_document->undo.push_back(std::move(m_step));
}

void WatchForUndo(Document& document) {
  AcDbDatabase::Body& body = document.database()->body();
  body.onAdded = [&document, &body](AcDbObject* object) {
    body.modified |= 1;
    if (document.recording) document.recording->added.push_back(object);
  };
  body.onErased = [&document, &body](AcDbObject* object) {
    body.modified |= 1;
    if (document.recording) document.recording->erased.push_back(object);
  };
  body.onMoved = [&document, &body](AcDbEntity* entity, const AcGeMatrix3d& by) {
    body.modified |= 1;
    AcGeMatrix3d back;
    if (document.recording && by.invert(&back))
      document.recording->moved.emplace_back(entity, back);
  };
}

std::wstring TakeBackLatest(Document& document) {
  if (document.undo.empty()) return {};
  document.recording = nullptr;  // or the way back would be a step of its own
  const UndoStep step = std::move(document.undo.back());
  document.undo.pop_back();
  if (document.undoGroup > static_cast<int>(document.undo.size())) document.undoGroup = -1;
  for (auto moved = step.moved.rbegin(); moved != step.moved.rend(); ++moved)
    moved->first->transformBy(moved->second);
  for (AcDbObject* object : step.added) object->erase(true);
  for (AcDbObject* object : step.erased) object->erase(false);
  return step.command;
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
  for (std::size_t i = first + 1; i < document.undo.size(); ++i)
    Append(document.undo[first], document.undo[i]);
  document.undo[first].command = L"GROUP";
  document.undo.resize(first + 1);
}

}  // namespace devhost
