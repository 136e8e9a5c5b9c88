// Open drawings: the document manager, its reactors, locks. Code runs either in a document's
// context (inside a command) or in application context (from the message loop).
#pragma once

#include "accmd.h"

class AcDbDatabase;

namespace AcAp {
enum DocLockMode {
  kNone = 0,
  kAutoWrite = 1,
  kNotLocked = 2,
  kWrite = 4,
  kProtectedAutoWrite = 0x14,
  kRead = 0x20,
  kXWrite = 0x40
};
}

class AcApDocument : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcApDocument);
  virtual const ACHAR* fileName() const = 0;  // full path; the bare name before the first save
  virtual const ACHAR* docTitle() const = 0;
  virtual AcDbDatabase* database() const = 0;
  virtual bool isQuiescent() const = 0;  // no command runs in it
  virtual AcAp::DocLockMode lockMode() const = 0;
};

class AcApDocumentIterator {
 public:
  virtual ~AcApDocumentIterator() = default;
  virtual bool done() const = 0;
  virtual void step() = 0;
  virtual AcApDocument* document() = 0;
};

// Virtual functions in slot order.
class AcApDocManagerReactor : public AcRxObject {
 public:
  virtual void documentCreateStarted(AcApDocument*) {}
  virtual void documentCreated(AcApDocument*) {}
  virtual void documentToBeDestroyed(AcApDocument*) {}
  virtual void documentDestroyed(const ACHAR*) {}
  virtual void documentCreateCanceled(AcApDocument*) {}
  virtual void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                          AcAp::DocLockMode, const ACHAR*) {}
  virtual void documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) {}
  virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                       AcAp::DocLockMode, const ACHAR*) {}
  virtual void documentBecameCurrent(AcApDocument*) {}
  virtual void documentToBeActivated(AcApDocument*) {}
  virtual void documentToBeDeactivated(AcApDocument*) {}
  virtual void documentActivationModified(bool) {}
  virtual void documentActivated(AcApDocument*) {}
  virtual void documentTitleUpdated(AcApDocument*) {}
};

class AcApDocManager : public AcRxObject {
 public:
  ACRX_DECLARE_MEMBERS(AcApDocManager);
  virtual AcApDocument* curDocument() const = 0;  // null in application context without drawings
  virtual AcApDocument* mdiActiveDocument() const = 0;
  virtual AcApDocument* document(const AcDbDatabase* database) const = 0;
  virtual int documentCount() const = 0;
  virtual bool isApplicationContext() const = 0;
  // While it is disabled, no other drawing can be activated, and none is made or opened, because
  // that activates it. Calls are not counted. eNotApplicable: nothing to change.
  virtual Acad::ErrorStatus disableDocumentActivation() = 0;
  virtual Acad::ErrorStatus enableDocumentActivation() = 0;
  virtual bool isDocumentActivationEnabled() const = 0;
  // Over the drawings open now, without those that close meanwhile. Owned by the caller.
  virtual AcApDocumentIterator* newAcApDocumentIterator() = 0;
  virtual Acad::ErrorStatus appContextOpenDocument(const ACHAR* path) = 0;
  virtual Acad::ErrorStatus appContextNewDocument(const ACHAR* templatePath) = 0;
  virtual Acad::ErrorStatus activateDocument(AcApDocument* document, bool pass = false) = 0;
  virtual Acad::ErrorStatus closeDocument(AcApDocument* document) = 0;  // changes are discarded
  virtual Acad::ErrorStatus lockDocument(AcApDocument* document,
                                         AcAp::DocLockMode mode = AcAp::kWrite,
                                         const ACHAR* command = nullptr,
                                         const ACHAR* local = nullptr, bool prompt = true) = 0;
  virtual Acad::ErrorStatus unlockDocument(AcApDocument* document) = 0;
  // Texts run in the order of these calls, whatever their drawings. The text is processed when the
  // document next waits for input; until then a drawing in the background comes to the front. ESC
  // (27) cancels its running command.
  virtual Acad::ErrorStatus sendStringToExecute(AcApDocument* document, const ACHAR* text,
                                                bool activate = true, bool wrapUpInactive = false,
                                                bool echo = true) = 0;
  virtual void addReactor(AcApDocManagerReactor* reactor) = 0;  // not owned
  virtual void removeReactor(AcApDocManagerReactor* reactor) = 0;
};

AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
