// Undo steps: what changed in a drawing while a command, a LISP call or a document lock lasted, and
// how to take it back: objects added and erased, moves, the data of objects that were opened for
// writing, variables of the drawing. Selections and views are not taken back, and nothing is
// redone.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "devhost/core/undo/object_state.h"
#include "gepnt3d.h"

class AcDbEntity;
class AcDbObject;

namespace devhost {

class Document;

struct UndoChange {
  enum class Kind { Added, Erased, Moved, Data, Variable } kind;
  AcDbObject* object = nullptr;
  AcGeMatrix3d back;                         // Moved
  std::unique_ptr<const ObjectState> state;  // Data: as it was before the first change of the step
  std::wstring name;                         // Variable
  std::optional<std::wstring> value;  // Variable: what it was; none: it had its initial value
};

struct UndoStep {
  std::wstring command;
  std::vector<UndoChange> changes;        // in the order in which they happened
  std::set<const AcDbObject*> kept = {};  // objects whose data stand among the changes

  bool IsEmpty() const { return changes.empty(); }
};

// Gathers all that happens in a drawing during its life into one step; inside another recording it
// does nothing, so that a command is one step whatever it calls.
class UndoRecording {
 public:
  UndoRecording(Document& document, std::wstring name);
  ~UndoRecording();
  UndoRecording(const UndoRecording&) = delete;
  UndoRecording& operator=(const UndoRecording&) = delete;

 private:
  Document* m_document;
  UndoStep m_step;
  bool m_own;
};

// Makes the drawing tell its changes to the recording that is open.
void WatchForUndo(Document& document);
// A variable of the drawing is about to be written.
void KeepVariableForUndo(Document& document, const std::wstring& name);
// Takes the latest step back, unrecorded; its command's name, empty when there was none.
std::wstring TakeBackLatest(Document& document);
// Drops all steps, that of what runs just now too: objects that they name are about to go.
void ForgetUndo(Document& document);
// From Begin to End all steps become one. A second Begin ends the first group.
void BeginUndoGroup(Document& document);
void EndUndoGroup(Document& document);

}  // namespace devhost
