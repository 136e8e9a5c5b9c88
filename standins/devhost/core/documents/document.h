// One open drawing: database, viewports, input queue, LISP functions and symbols,
// selections, undo steps.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "acdocman.h"
#include "dbmain.h"
#include "devhost/core/commands/input_queue.h"
#include "devhost/core/lisp/lisp_value.h"
#include "devhost/core/undo/undo.h"
#include "devhost/core/view/viewport_set.h"

namespace devhost {

struct LoadedModule;

struct LispFunction {
  LoadedModule* module;  // its entry point is called
  int code;
};

// A grip that was pressed in the view.
struct HotGrip {
  AcDbObjectId entity;
  AcGePoint3d at;
};

class Document : public AcApDocument {
 public:
  explicit Document(std::wstring path);
  ~Document() override;

  const ACHAR* fileName() const override { return m_path.c_str(); }
  const ACHAR* docTitle() const override { return m_title.c_str(); }
  AcDbDatabase* database() const override { return m_database.get(); }
  bool isQuiescent() const override { return commands.empty(); }
  AcAp::DocLockMode lockMode() const override;

  const std::wstring& Title() const { return m_title; }  // file name with extension
  std::wstring Name() const;                             // file name without extension
  void SetPath(const std::wstring& path);
  bool HasFile() const { return m_hasFile; }
  void SetHasFile() { m_hasFile = true; }

  InputQueue input;
  ViewportSet viewports;
  ViewTransform& view = viewports.Current();           // of the current viewport
  std::vector<std::wstring> commands;                  // running commands, the outermost first
  std::map<std::wstring, LispFunction> lispFunctions;  // by upper-case name
  std::map<std::wstring, LispValue> lispSymbols;       // by upper-case name
  std::map<std::wstring, std::wstring> variables;      // variables stored with the drawing
  std::vector<AcDbObjectId> pickFirst;
  std::vector<AcDbObjectId> previousSelection;
  std::set<AcDbObject*> highlighted;  // see selection/highlight.h
  AcDbObjectId previewed;             // highlighted by the host's preview; may be null
  std::optional<HotGrip> hotGrip;     // taken by the next GRIP_STRETCH
  AcDbObjectId textToEdit;            // taken by the next TEXTEDIT; may be null
  std::vector<UndoStep> undo, redo;
  bool locksJoin = false;  // the latest step is of a lock and takes the changes of the next one
  UndoStep* recording = nullptr;
  int undoGroup = -1;  // number of steps when the open group began; -1: no open group
  int locks = 0;
  std::unique_ptr<UndoRecording> lockStep;  // open during a lock outside of all commands
  bool closePending = false;                // is closed as soon as no command runs in it
  bool closing = false;                     // reactors are being notified of the end
  long long inputOrder = 0;                 // of the text that runs or ran last; see InputOrigin
  std::wstring lastCommand;

 private:
  std::wstring m_path, m_title;
  std::unique_ptr<AcDbDatabase> m_database;
  bool m_hasFile = false;
};

}  // namespace devhost
