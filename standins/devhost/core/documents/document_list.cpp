// The open drawings; see the header.
#include "devhost/core/documents/document_list.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "axlock.h"
#include "devhost/core/base/journal.h"
#include "devhost/core/base/start_trace.h"
#include "devhost/core/base/text_case.h"
#include "devhost/core/documents/document_scope.h"
#include "devhost/core/drawing/database_body.h"
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

std::wstring FullPath(const std::wstring& path) {
  std::error_code error;
  const std::filesystem::path full = std::filesystem::absolute(path, error);
  return error ? path : full.lexically_normal().wstring();
}

// Passes over drawings that have been closed since it was made.
class DocumentIterator : public AcApDocumentIterator {
 public:
  explicit DocumentIterator(std::vector<AcApDocument*> all) : m_all(std::move(all)) {}
  bool done() const override { return Next() >= m_all.size(); }
  void step() override { ++m_at; }
  AcApDocument* document() override { return done() ? nullptr : m_all[m_at]; }

 private:
  std::size_t Next() const {
    while (m_at < m_all.size() && !TheHost().documents.FindDocument(m_all[m_at])) ++m_at;
    return m_at;
  }

  std::vector<AcApDocument*> m_all;
  mutable std::size_t m_at = 0;
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
  m_bringBack = nullptr;
  if (m_current) TheHost().engine.CancelAll(*m_current);
  TheHost().Ui().DocumentCreated(*document);
  BeginActivation(*document);
  if (!FindDocument(document)) return nullptr;
  RecordDocument("created", document->Title());
  Notify([&](AcApDocManagerReactor* r) { r->documentCreated(document); });
  if (FindDocument(document)) TheHost().modules.SendToAll(AcRx::kLoadDwgMsg, document);
  if (!FindDocument(document)) return nullptr;
  document->view.ZoomTo(ExtentsOf(*document->database()));
  EntityIndex::Of(*document->database()).Prepare(*document->database());
  TheHost().Ui().PictureChanged(*document);
  EndActivation(*document);
  return FindDocument(document);
}

bool DocumentList::MayActivate() const {
  if (m_activationEnabled) return true;
  TheHost().Print(L"\n现在不能切换图形。\n");
  return false;
}

Document* DocumentList::New() {
  if (!MayActivate()) return nullptr;
  Notify([](AcApDocManagerReactor* r) { r->documentCreateStarted(nullptr); });
  return Adopt(std::make_unique<Document>(L"Drawing" + std::to_wstring(++m_created) + L".dwg"));
}

Document* DocumentList::Open(const std::wstring& path) {
  const std::wstring found = TheHost().FindFile(path);
  const std::wstring full = FullPath(found.empty() ? path : found);
  if (Document* open = FindByPath(full)) return Activate(open) ? open : nullptr;
  if (!MayActivate()) return nullptr;
  Notify([](AcApDocManagerReactor* r) { r->documentCreateStarted(nullptr); });
  auto document = std::make_unique<Document>(full);
  document->SetHasFile();
  const DrawingReport report = ReadDrawing(document->fileName(), *document->database());
  if (!report.readAnything) {
    TheHost().Print(L"\n" + report.message + L"\n");
    Notify([&](AcApDocManagerReactor* r) { r->documentCreateCanceled(document.get()); });
    return nullptr;
  }
  LoadHeaderVariables(*document);
  document->database()->body().modified = 0;
  Document* opened = Adopt(std::move(document));
  if (!report.message.empty()) TheHost().Print(L"\n" + report.message + L"\n");
  return opened;
}

void DocumentList::BeginActivation(Document& document) {
  if (Document* before = m_current)
    Notify([&](AcApDocManagerReactor* r) { r->documentToBeDeactivated(before); });
  Notify([&](AcApDocManagerReactor* r) { r->documentToBeActivated(&document); });
  if (!FindDocument(&document)) return;
  m_current = &document;
  std::erase(m_order, &document);
  m_order.push_back(&document);
  TheHost().Ui().DocumentActivated(&document);
  Notify([&](AcApDocManagerReactor* r) { r->documentBecameCurrent(&document); });
}

bool DocumentList::EndActivation(Document& document) {
  if (m_current != &document) return false;
  RecordDocument("activated", document.Title());
  Notify([&](AcApDocManagerReactor* r) { r->documentActivated(&document); });
  if (m_current != &document) return false;
  TheHost().SetPrompt(L"命令: ");
  return true;
}

bool DocumentList::Activate(Document* document) {
  if (document == m_current) {
    m_bringBack = nullptr;
    return true;
  }
  if (!MayActivate()) return false;
  m_bringBack = nullptr;
  if (m_current) TheHost().engine.CancelAll(*m_current);
  BeginActivation(*document);
  return EndActivation(*document);
}

void DocumentList::BringToFront(Document& document) {
  if (&document == m_current) return;
  if (!m_bringBack) m_bringBack = m_current;
  BeginActivation(document);
  EndActivation(document);
}

bool DocumentList::MustBringBack() const { return m_bringBack && m_activationEnabled; }

bool DocumentList::BringBack() {
  if (!MustBringBack()) return false;
  Document* noted = FindDocument(std::exchange(m_bringBack, nullptr));
  if (!noted || noted == m_current) return false;
  BeginActivation(*noted);
  EndActivation(*noted);
  return true;
}

Document* DocumentList::NextWithInput() const {
  Document* next = nullptr;
  for (const auto& d : m_documents) {
    if (!d->input.HasItem() || (d.get() != m_current && !m_activationEnabled)) continue;
    if (!next || d->input.FirstOrder() < next->input.FirstOrder()) next = d.get();
  }
  return next;
}

Acad::ErrorStatus DocumentList::EnableActivation(bool enabled) {
  if (m_activationEnabled == enabled) return Acad::eNotApplicable;
  m_activationEnabled = enabled;
  Notify([&](AcApDocManagerReactor* r) { r->documentActivationModified(enabled); });
  return Acad::eOk;
}

Acad::ErrorStatus DocumentList::disableDocumentActivation() { return EnableActivation(false); }
Acad::ErrorStatus DocumentList::enableDocumentActivation() { return EnableActivation(true); }

void DocumentList::Rename(Document& document, const std::wstring& path) {
  document.SetPath(path);
  document.SetHasFile();
  TheHost().Ui().DocumentTitled(document);
  Notify([&](AcApDocManagerReactor* r) { r->documentTitleUpdated(&document); });
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
  if (!document || !FindDocument(document) || document->closing) return;
  TheHost().engine.CancelAll(*document);
  if (!document->commands.empty() || document->locks > 0) {
    // A command or call of this drawing is on the stack and must end first.
    document->closePending = true;
    return;
  }
  document->closing = true;
  Notify([&](AcApDocManagerReactor* r) { r->documentToBeDestroyed(document); });
  TheHost().modules.SendToAll(AcRx::kUnloadDwgMsg, document);
  Destroy(*document);
  if (!m_current && !m_order.empty()) {
    Document& next = *m_order.back();
    BeginActivation(next);
    EndActivation(next);
  }
  if (!m_current) TheHost().SetPrompt(L"");
}

void DocumentList::Destroy(Document& document) {
  const std::wstring title = document.Title();
  document.lockStep.reset();
  std::erase(m_order, &document);
  if (m_current == &document) {
    m_current = nullptr;
    if (m_order.empty()) TheHost().Ui().DocumentActivated(nullptr);
  }
  LeaveScopes(&document);
  TheHost().Ui().DocumentDestroyed(document);
  std::erase_if(m_documents, [&](const auto& d) { return d.get() == &document; });
  RecordDocument("destroyed", title);
  Notify([&](AcApDocManagerReactor* r) { r->documentDestroyed(title.c_str()); });
}

Document* DocumentList::FindByName(const std::wstring& name) const {
  for (const auto& d : m_documents)
    if (SameName(d->Name(), name) || SameName(d->Title(), name)) return d.get();
  return nullptr;
}

Document* DocumentList::FindByPath(const std::wstring& path) const {
  for (const auto& d : m_documents)
    if (d->HasFile() && SameName(d->fileName(), path)) return d.get();
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
  return New() ? Acad::eOk : Acad::eNotApplicable;
}

Acad::ErrorStatus DocumentList::activateDocument(AcApDocument* document, bool) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  return Activate(known) ? Acad::eOk : Acad::eNotApplicable;
}

Acad::ErrorStatus DocumentList::closeDocument(AcApDocument* document) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  Close(known);
  return Acad::eOk;
}

// Everything written under one lock is one undo step; see UndoRecording for several locks.
Acad::ErrorStatus DocumentList::lockDocument(AcApDocument* document, AcAp::DocLockMode,
                                             const ACHAR* command, const ACHAR*, bool) {
  Document* known = FindDocument(document);
  if (!known) return Acad::eNoDocument;
  if (known->locks++ == 0)
    known->lockStep = std::make_unique<UndoRecording>(*known, command ? command : L"GROUP",
                                                      UndoRecording::Kind::Lock);
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
  if (activate && known != m_current && m_activationEnabled) Activate(known);
  if (FindDocument(known)) TheHost().engine.Post(*known, text);
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
