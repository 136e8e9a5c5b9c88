// Undo steps: the changes of a drawing during a command, a LISP call or a document lock, and
// reverting them. Recorded are objects added and erased, moves, data of objects that were opened
// for writing, variables of the drawing and its user coordinate systems; not selections and views.
// An undone step can be redone until the next step is recorded.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "devhost/core/base/user_system.h"
#include "devhost/core/undo/object_state.h"
#include "gepnt3d.h"

class AcDbObject;

namespace devhost {

class Document;

struct UndoChange {
  enum class Kind { Added, Erased, Moved, Data, Variable, System } kind;
  AcDbObject* object = nullptr;
  AcGeMatrix3d back;                         // Moved
  std::unique_ptr<const ObjectState> state;  // Data: before the first change of the step
  std::wstring name;                         // Variable
  std::optional<std::wstring> value;         // Variable: the old value; none: the initial value
  UserSystem system = {};                    // System: the old one
  bool ofPaper = false;                      // System: that of the sheet
};

struct UndoStep {
  std::wstring command;
  std::vector<UndoChange> changes;            // in order
  std::set<const AcDbObject*> recorded = {};  // objects with a Data change

  bool IsEmpty() const { return changes.empty(); }
};

// Records all changes of a drawing during its lifetime as one step. Inside another recording it has
// no effect, so that a command is one step with everything that it calls. The steps of document
// locks join into one until the message loop is idle or a recording of another kind begins: code
// that locks and unlocks several times for one action of the user makes one step.
class UndoRecording {
 public:
  enum class Kind { Command, Lock };
  UndoRecording(Document& document, std::wstring name, Kind kind = Kind::Command);
  ~UndoRecording();
  UndoRecording(const UndoRecording&) = delete;
  UndoRecording& operator=(const UndoRecording&) = delete;

 private:
  Document* m_document;
  UndoStep m_step;
  Kind m_kind;
  bool m_outermost;
};

// The next lock of each drawing begins a step of its own. Called when the message loop is idle.
void EndLockSteps();

// Connects the callbacks of the drawing's database to the open recording.
void ConnectUndo(Document& document);
// Call before a variable of the drawing changes.
void RecordVariableForUndo(Document& document, const std::wstring& name);
// Sets the user coordinate system of the current space.
void ChangeUserSystem(Document& document, const UserSystem& system);
// Reverts and removes the latest step, without recording. Returns its command's name; empty: there
// was no step.
std::wstring UndoLatestStep(Document& document);
// Makes the changes of the latest undone step again and makes it the latest step. Empty: none.
std::wstring RedoLatestStep(Document& document);
// Discards all steps, also undone ones, and the changes of the open recording, before objects that
// they refer to are deleted.
void DiscardUndo(Document& document);
// All steps between Begin and End become one. A second Begin ends the first group.
void BeginUndoGroup(Document& document);
void EndUndoGroup(Document& document);

}  // namespace devhost
