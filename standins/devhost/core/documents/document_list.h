// The open drawings and the current one. Implements the document manager of the published
// interface.
//
// Notifications, in order. The current drawing always has the active window.
//   created or opened: documentCreateStarted, documentToBeDeactivated (the one before),
//     documentToBeActivated, documentBecameCurrent, documentCreated, kLoadDwgMsg, documentActivated
//   activated: documentToBeDeactivated, documentToBeActivated, documentBecameCurrent,
//     documentActivated
//   closed: documentToBeDestroyed, kUnloadDwgMsg, documentDestroyed, then the activation of another
// A reactor may close or activate drawings; what was to follow for a closed one is omitted.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "acdocman.h"

namespace devhost {

class Document;

class DocumentList : public AcApDocManager {
 public:
  DocumentList();
  ~DocumentList() override;

  Document* Current() const { return m_current; }
  const std::vector<std::unique_ptr<Document>>& All() const { return m_documents; }

  // Creates and activates an empty drawing ("Drawing1.dwg", counting up). Null if activation is
  // disabled, or if a reactor closed the drawing.
  Document* New();
  // Opens a drawing; one that is already open is only activated. Problems are printed with file and
  // line. Null if nothing could be read.
  Document* Open(const std::wstring& path);
  // False if activation is disabled, or if a reactor closed it.
  bool Activate(Document* document);
  // Activates a drawing for its input, without cancelling what runs; see BringBack.
  void BringToFront(Document& document);
  // Activates the drawing that was in front before the first BringToFront, unless another was
  // activated since. False: nothing to do.
  bool BringBack();
  bool MustBringBack() const;
  // The drawing whose input text is the next to run, or null.
  Document* NextWithInput() const;
  // Notifies reactors and modules and destroys the drawing, then activates the one used before. If
  // a command runs in it, it is cancelled and the drawing is closed later by ClosePending. Changes
  // are discarded without a question; see close_drawings.h.
  void Close(Document* document);
  bool ClosePending();  // closes one drawing whose commands have ended; false: none
  bool HasPendingClose() const;
  void Rename(Document& document, const std::wstring& path);  // it has this file now
  // By file name with or without extension, ignoring case.
  Document* FindByName(const std::wstring& name) const;
  Document* FindByPath(const std::wstring& path) const;  // null: no open drawing has this file

  AcApDocument* curDocument() const override;
  AcApDocument* mdiActiveDocument() const override;
  AcApDocument* document(const AcDbDatabase* database) const override;
  int documentCount() const override;
  bool isApplicationContext() const override;
  Acad::ErrorStatus disableDocumentActivation() override;
  Acad::ErrorStatus enableDocumentActivation() override;
  bool isDocumentActivationEnabled() const override { return m_activationEnabled; }
  AcApDocumentIterator* newAcApDocumentIterator() override;
  Acad::ErrorStatus appContextOpenDocument(const ACHAR* path) override;
  Acad::ErrorStatus appContextNewDocument(const ACHAR* templatePath) override;
  Acad::ErrorStatus activateDocument(AcApDocument* document, bool pass) override;
  Acad::ErrorStatus closeDocument(AcApDocument* document) override;
  Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                 const ACHAR* command, const ACHAR* local, bool prompt) override;
  Acad::ErrorStatus unlockDocument(AcApDocument* document) override;
  Acad::ErrorStatus sendStringToExecute(AcApDocument* document, const ACHAR* text, bool activate,
                                        bool wrapUpInactive, bool echo) override;
  void addReactor(AcApDocManagerReactor* reactor) override;
  void removeReactor(AcApDocManagerReactor* reactor) override;

  Document* FindDocument(const AcApDocument* document) const;  // null if it is not open

 private:
  // Reactors may remove themselves and others.
  template <class F>
  void Notify(F call);
  Document* Adopt(std::unique_ptr<Document> document);
  void BeginActivation(Document& document);  // up to documentBecameCurrent; it may be closed then
  // False: closed, or another is current. The address is compared before it is used.
  bool EndActivation(Document& document);
  void Destroy(Document& document);
  bool MayActivate() const;  // prints why not
  Acad::ErrorStatus EnableActivation(bool enabled);

  std::vector<std::unique_ptr<Document>> m_documents;
  std::vector<Document*> m_order;  // by last use, the current one last
  std::vector<AcApDocManagerReactor*> m_reactors;
  Document* m_current = nullptr;
  Document* m_bringBack = nullptr;  // compared only: it may be closed
  bool m_activationEnabled = true;
  int m_created = 0;
};

}  // namespace devhost
