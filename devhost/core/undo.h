// Undo steps: what was added, erased or moved while a command or a LISP call ran, and how to take
// it back. Changes to an entity's own data (a text's string) are not recorded.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "gepnt3d.h"

class AcDbEntity;
class AcDbObject;

namespace devhost {

class Document;

struct UndoStep {
  std::wstring command;
  std::vector<AcDbObject*> added, erased;
  std::vector<std::pair<AcDbEntity*, AcGeMatrix3d>> moved;  // with the way back, in order

  bool IsEmpty() const { return added.empty() && erased.empty() && moved.empty(); }
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
// Takes the latest step back, unrecorded; its command's name, empty when there was none.
std::wstring TakeBackLatest(Document& document);
// From Begin to End all steps become one. A second Begin ends the first group.
void BeginUndoGroup(Document& document);
void EndUndoGroup(Document& document);

}  // namespace devhost
