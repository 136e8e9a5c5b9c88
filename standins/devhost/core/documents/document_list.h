// The open drawings, which of them is current, and everything that happens to them. This is the
// document manager that modules see.
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

  // A new empty drawing ("Drawing1.dwg", counting up), current afterwards.
  Document* New();
  // Reads a file; a file that is open already is only activated. What was wrong is printed with
  // file and line; null when nothing at all could be read.
  Document* Open(const std::wstring& path);
  void Activate(Document* document);
  // Ends what runs in it, tells reactors and modules, destroys it. The one before becomes current.
  void Close(Document* document);
  bool CloseWaiting();  // closes one that had to wait for the end of what ran in it; false: none
  bool AnyCloseWaits() const;
  Document* FindByName(
      const std::wstring& name) const;  // file name without extension, case ignored

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

  Document* Known(const AcApDocument* document) const;  // null for one that is not open

 private:
  template <class F>
  void Notify(F tell);  // survives reactors that remove themselves or others
  Document* Adopt(std::unique_ptr<Document> document);

  std::vector<std::unique_ptr<Document>> m_documents;
  std::vector<Document*> m_order;  // by last use, the latest last
  std::vector<AcApDocManagerReactor*> m_reactors;
  Document* m_current = nullptr;
  int m_created = 0;
};

}  // namespace devhost
