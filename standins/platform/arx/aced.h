// What the editor offers beside its C functions: the prompt, the groups of menus, viewports, and
// notice of commands and LISP expressions as they begin and end.
#pragma once

#include "accmd.h"

void acedPostCommandPrompt();  // the prompt again, after printing outside a command
bool acedIsMenuGroupLoaded(const ACHAR* group);

// The tiled viewports of the current drawing to the records "*Active" of its viewport table, and
// back to the screen: eInvalidInput unless the records fill the window without overlap.
Acad::ErrorStatus acedVports2VportTableRecords();
Acad::ErrorStatus acedVportTableRecords2Vports();

class AcDbViewTableRecord;
class AcDbViewport;

// Shows this view in the current viewport of the current drawing; `viewport` is null.
// eInvalidInput for another viewport, or a view without a height.
Acad::ErrorStatus acedSetCurrentView(AcDbViewTableRecord* view, AcDbViewport* viewport);

// Called in the context of the current document. Every beginning is followed by one end of its
// kind; commands may be nested.
class AcEditorReactor : public AcRxObject {
 public:
  virtual void commandWillStart(const ACHAR*) {}  // the global name, upper case
  virtual void commandEnded(const ACHAR*) {}
  virtual void commandFailed(const ACHAR*) {}
  virtual void commandCancelled(const ACHAR*) {}
  virtual void lispWillStart(const ACHAR*) {}  // the first line of the expression
  virtual void lispEnded() {}
  virtual void lispCancelled() {}
};

class AcEditor : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcEditor);
  virtual void addReactor(AcEditorReactor* reactor) = 0;  // not owned
  virtual void removeReactor(AcEditorReactor* reactor) = 0;
};

#define ACED_EDITOR_OBJ L"AcEditor"
#define acedEditor AcEditor::cast(acrxSysRegistry()->at(ACED_EDITOR_OBJ))
