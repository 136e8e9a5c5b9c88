// The open drawings; see the header.
#include "devhost/core/documents/document_list.h"

#include <algorithm>

#include "axlock.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/documents/document_scope.h"
#include "devhost/core/dxf/drawing_file.h"
#include "devhost/core/host/host.h"
#include "devhost/core/variables/header_variables.h"
#include "devhost/core/view/entity_index.h"
#include "devhost/core/view/scene.h"

namespace devhost {
namespace {

void RecordDocument(const char* phase, const std::wstring& name) {
  TheJournal().Record("document", {{"phase", phase}, {"name", Utf8(name)}});
}

class DocumentIterator : public AcApDocumentIterator {
 public:
  explicit DocumentIterator(std::vector<AcApDocument*> all) : m_all(std::move(all)) {}
  bool done() const override { return m_at >= m_all.size(); }
  void step() override { ++m_at; }
  AcApDocument* document() override { return done() ? nullptr : m_all[m_at]; }

 private:
  std::vector<AcApDocument*> m_all;
  std::size_t m_at = 0;
};

}  // namespace

DocumentList::DocumentList() = default;
DocumentList::~DocumentList() = default;

template <class F>
void DocumentList::Notify(F call) {
  const std::vector<AcApDocManagerReactor*> reactors = m_reactors;
  for (AcApDocManagerReactor* reactor : reactors)
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) call(reactor);
}

Document* DocumentList::Adopt(std::unique_ptr<Document> made) {
  Document* document = made.get();
  m_documents.push_back(std::move(made));
  TheHost().Ui().DocumentCreated(*document);
  RecordDocument("created", document->Title());
  Notify([&](AcApDocManagerReactor* r) { r->documentCreated(document); });
  TheHost().modules.SendToAll(AcRx::kLoadDwgMsg, document);
  Activate(document);
  document->view.ZoomTo(ExtentsOf(*document->database()));
  EntityIndex::Of(*document->database()).Prepare(*document->database());
  TheHost().Ui().PictureChanged(*document);
  return document;
}

Document* DocumentList::New() {
  Notify([](AcApDocManagerReactor* r) { r->documentCreateStarted(nullptr); });
  return Adopt(std::make_unique<Document>(L"Drawing" + std::to_wstring(++m_created) + L".dwg"));
}

Document* DocumentList::Open(const std::wstring& path) {
  const std::wstring found = TheHost().FindFile(path);
  for (const auto& d : m_documents)
    if (d->HasFile() && SameName(d->fileName(), found.empty() ? path : found)) {
      Activate(d.get());
      return d.get();
    }
  Notify([](AcApDocManagerReactor* r) { r->documentCreateStarted(nullptr); });
  auto document = std::make_unique<Document>(found.empty() ? path : found);
  document->SetHasFile();
  const DrawingReport report = ReadDrawing(document->fileName(), *document->database());
  if (!report.readAnything) {
    TheHost().Print(L"\n" + report.message + L"\n");
    Notify([&](AcApDocManagerReactor* r) { r->documentCreateCanceled(document.get()); });
    return nullptr;
  }
  LoadHeaderVariables(*document);
  Document* opened = Adopt(std::move(document));
  if (!report.message.empty()) TheHost().Print(L"\n" + report.message + L"\n");
  return opened;
}

void DocumentList::Activate(Document* document) {
  if (document == m_current) return;
  if (m_current && document) TheHost().engine.CancelAll(*m_current);
  if (m_current) {
    Document* before = m_current;
    Notify([&](AcApDocManagerReactor* r) { r->documentToBeDeactivated(before); });
  }
  if (document) Notify([&](AcApDocManagerReactor* r) { r->documentToBeActivated(document); });
  m_current = document;
  std::erase(m_order, document);
  if (document) m_order.push_back(document);
  TheHost().Ui().DocumentActivated(document);
  if (!document) return;
  RecordDocument("activated", document->Title());
  Notify([&](AcApDocManagerReactor* r) { r->documentBecameCurrent(document); });
  Notify([&](AcApDocManagerReactor* r) { r->documentActivated(document); });
  TheHost().SetPrompt(L"命令: ");
}

bool DocumentList::ClosePending() {
  for (const auto& document : m_documents)
    if (document->closePending && document->commands.empty() && document->locks == 0) {
      Close(document.get());
      return true;
    }
  return false;
}

bool DocumentList::HasPendingClose() const {
  return std::any_of(m_documents.begin(), m_documents.end(),
                     [](const auto& document) { return document->closePending; });
}

void DocumentList::Close(Document* document) {
  if (!document || !FindDocument(document)) return;
  TheHost().engine.CancelAll(*document);
  if (!document->commands.empty() || document->locks > 0) {
    // A command or call of this drawing is on the stack and must end first.
    document->closePending = true;
    return;
  }
  Notify([&](AcApDocManagerReactor* r) { r->documentToBeDestroyed(document); });
  TheHost().modules.SendToAll(AcRx::kUnloadDwgMsg, document);
  const std::wstring title = document->Title();
  document->lockStep.reset();
  std::erase(m_order, document);
  if (m_current == document) {
    m_current = nullptr;
    if (m_order.empty()) TheHost().Ui().DocumentActivated(nullptr);
  }
  TheHost().Ui().DocumentDestroyed(*document);
  std::erase_if(m_documents, [&](const auto& d) { return d.get() == document; });
  RecordDocument("destroyed", title);
  Notify([&](AcApDocManagerReactor* r) { r->documentDestroyed(title.c_str()); });
  if (!m_current && !m_order.empty()) Activate(m_order.back());
  if (!m_current) TheHost().SetPrompt(L"");
}

Document* DocumentList::FindByName(const std::wstring& name) const {
  for (const auto& d : m_documents)
    if (SameName(d->Name(), name) || SameName(d->Title(), name)) return d.get();
  return nullptr;
}

Document* DocumentList::FindDocument(const AcApDocument* document) const {
  for (const auto& d : m_documents)
    if (d.get() == document) return d.get();
  return nullptr;
}

AcApDocument* DocumentList::curDocument() const {
  Document* scoped = ScopedDocument();
  return scoped ? scoped : m_current;
}
AcApDocument* DocumentList::mdiActiveDocument() const { return m_current; }

AcApDocument* DocumentList::document(const AcDbDatabase* database) const {
  for (const auto& d : m_documents)
    if (d->database() == database) return d.get();
  return nullptr;
}

int DocumentList::documentCount() const { return static_cast<int>(m_documents.size()); }

bool DocumentList::isApplicationContext() const { return !TheHost().engine.InDocumentContext(); }

AcApDocumentIterator* DocumentList::newAcApDocumentIterator() {
  std::vector<AcApDocument*> all;
  for (const auto& d : m_documents) all.push_back(d.get());
  return new DocumentIterator(std::move(all));
}

Acad::ErrorStatus DocumentList::appContextOpenDocument(const ACHAR* path) {
  if (!path || !*path) return Acad::eInvalidInput;
  if (!isApplicationContext()) return Acad::eNotApplicable;
  return Open(path) ? Acad::eOk : Acad::eFileNotFound;
}

Acad::ErrorStatus DocumentList::appContextNewDocument(const ACHAR*) {
  if (!isApplicationContext()) return Acad::eNotApplicable;
  New();
  return Acad::eOk;
}

Acad::ErrorStatus DocumentList::activateDocument(AcApDocument* document, bool) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  Activate(known);
  return Acad::eOk;
}

Acad::ErrorStatus DocumentList::closeDocument(AcApDocument* document) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  Close(known);
  return Acad::eOk;
}

// Everything written under one lock is one undo step.
Acad::ErrorStatus DocumentList::lockDocument(AcApDocument* document, AcAp::DocLockMode,
                                             const ACHAR* command, const ACHAR*, bool) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  if (known->locks++ == 0)
    known->lockStep = std::make_unique<UndoRecording>(*known, command ? command : L"GROUP");
  return Acad::eOk;
}

Acad::ErrorStatus DocumentList::unlockDocument(AcApDocument* document) {
  Document* known = FindDocument(document);
  if (!known || known->locks == 0) return Acad::eNoDocument;
  if (--known->locks == 0) known->lockStep.reset();
  return Acad::eOk;
}

Acad::ErrorStatus DocumentList::sendStringToExecute(AcApDocument* document, const ACHAR* text,
                                                    bool activate, bool, bool) {
  Document* known = FindDocument(document);
  if (!known || !text) return Acad::eNoDocument;
  TheJournal().Record("sent", {{"text", Utf8(text)}});
  if (activate && known != m_current) Activate(known);
  known->input.Append(text);
  return Acad::eOk;
}

void DocumentList::addReactor(AcApDocManagerReactor* reactor) {
  TheStartTrace().Step("addReactor");
  if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
    m_reactors.push_back(reactor);
}

void DocumentList::removeReactor(AcApDocManagerReactor* reactor) {
  std::erase(m_reactors, reactor);
}

}  // namespace devhost
