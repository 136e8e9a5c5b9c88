// The open drawings and the current one. Implements the document manager of
// the published interface.
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

  // Creates and activates an empty drawing ("Drawing1.dwg", counting up).
  Document* New();
  // Opens a drawing; one that is already open is only activated. Problems are printed with file and
  // line. Null if nothing could be read.
  Document* Open(const std::wstring& path);
  void Activate(Document* document);
  // Notifies reactors and modules and destroys the drawing, then activates the one used before. If
  // a command runs in it, it is cancelled and the drawing is closed later by ClosePending.
  void Close(Document* document);
  bool ClosePending();  // closes one drawing whose commands have ended; false: none
  bool HasPendingClose() const;
  // By file name with or without extension, ignoring case.
  Document* FindByName(const std::wstring& name) const;

  AcApDocument* curDocument() const override;
  AcApDocument* mdiActiveDocument() const override;
  AcApDocument* document(const AcDbDatabase* database) const override;
  int documentCount() const override;
  bool isApplicationContext() const override;
  bool isDocumentActivationEnabled() const override { return true; }
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

  std::vector<std::unique_ptr<Document>> m_documents;
  std::vector<Document*> m_order;  // by last use, the current one last
  std::vector<AcApDocManagerReactor*> m_reactors;
  Document* m_current = nullptr;
  int m_created = 0;
};

}  // namespace devhost
