// The implementation of HostUi; see the header.
#include "devhost/ui/frame/host_ui_impl.h"

#include <algorithm>

#include "devhost/core/host/host.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/messages/message_pump.h"

namespace devhost {
namespace {

class ScopedCount {
 public:
  explicit ScopedCount(int& count) : m_count(count) { ++m_count; }
  ~ScopedCount() { --m_count; }
  ScopedCount(const ScopedCount&) = delete;
  ScopedCount& operator=(const ScopedCount&) = delete;

 private:
  int& m_count;
};

}  // namespace

HostUiImpl& TheHostUi() {
  static HostUiImpl ui;
  return ui;
}

DrawingChild* HostUiImpl::ChildOf(const Document& document) const {
  for (const auto& child : m_children)
    if (&child->GetDocument() == &document) return child.get();
  return nullptr;
}

DrawingChild* HostUiImpl::ActiveChild() const {
  Document* current = TheHost().documents.Current();
  return current ? ChildOf(*current) : nullptr;
}

CommandBar::Listener HostUiImpl::CommandListener() {
  return {[](const std::wstring& line) { TheHost().engine.EnterLine(line); },
          [] { TheHost().engine.PressEscape(); }, [] { return TheHost().engine.AcceptsBlanks(); }};
}

bool HostUiImpl::ClosePending() {
  if (m_toClose.empty() || TheHost().engine.IsCommandRunning()) return false;
  Document* document = m_toClose.front();
  m_toClose.erase(m_toClose.begin());
  if (TheHost().documents.FindDocument(document)) TheHost().documents.Close(document);
  return true;
}

bool HostUiImpl::RunWaiting() {
  m_destroyed.clear();
  if (ClosePending()) return true;
  return !TheHost().engine.IsCommandRunning() && TheHost().engine.RunWaiting();
}

bool HostUiImpl::HasPendingInput() const {
  return !m_toClose.empty() || TheHost().engine.HasPendingInput();
}

void HostUiImpl::OnUserActivate(DrawingChild& child) {
  if (m_fromCore == 0) TheHost().documents.Activate(&child.GetDocument());
}

void HostUiImpl::OnUserClose(DrawingChild& child) {
  if (TheHost().engine.IsCommandRunning()) TheHost().engine.PressEscape();
  m_toClose.push_back(&child.GetDocument());
}

void HostUiImpl::DocumentCreated(Document& document) {
  if (!TheFrame()) return;
  ScopedCount guard(m_fromCore);
  auto child = std::make_unique<DrawingChild>(document);
  m_children.push_back(std::move(child));
  m_children.back()->CreateIn(TheFrame(), document.Title());
}

void HostUiImpl::DocumentActivated(Document* document) {
  DrawingChild* child = document ? ChildOf(*document) : nullptr;
  if (!child) return;
  ScopedCount guard(m_fromCore);
  child->Activate();
  // A frame shows the title of a maximized child when it is set, not when the child is activated.
  DocumentTitled(*document);
}

void HostUiImpl::DocumentDestroyed(Document& document) {
  ScopedCount guard(m_fromCore);
  const auto found = std::find_if(m_children.begin(), m_children.end(), [&](const auto& child) {
    return &child->GetDocument() == &document;
  });
  if (found == m_children.end()) return;
  std::erase(m_toClose, &document);
  std::unique_ptr<DrawingChild> child = std::move(*found);
  m_children.erase(found);
  child->DestroyMdiWindow();
  m_destroyed.push_back(std::move(child));
}

void HostUiImpl::DocumentTitled(Document& document) {
  if (DrawingChild* child = ChildOf(document))
    ::SetWindowTextW(child->m_hWnd, document.Title().c_str());
}

void HostUiImpl::PictureChanged(Document& document) {
  DrawingChild* child = ChildOf(document);
  if (!child) return;
  child->View().Model().EntitiesChanged();
  child->View().PictureChanged();
}

void HostUiImpl::ViewChanged(Document& document) {
  if (DrawingChild* child = ChildOf(document)) child->View().PictureChanged();
}

void HostUiImpl::SelectionChanged(Document& document) {
  if (DrawingChild* child = ChildOf(document)) child->View().HighlightChanged();
}

void HostUiImpl::Print(const std::wstring& text) {
  if (TheFrame()) TheFrame()->Commands().Print(text);
}

void HostUiImpl::PromptChanged(const std::wstring& prompt) {
  if (!TheFrame()) return;
  TheFrame()->Commands().SetPrompt(prompt);
  if (DrawingChild* child = ActiveChild()) child->View().SelectionChanged();
}

void HostUiImpl::VariableChanged(const std::wstring& name) {
  Document* current = TheHost().documents.Current();
  if (!current) return;
  const bool tileChanged = name == L"CVPORT" && !current->viewports.IsOnSheet();
  if (tileChanged || name == L"GRIDMODE" || name == L"GRIDUNIT")
    ViewChanged(*current);
  else if (name == L"TILEMODE" || name == L"CVPORT")
    PictureChanged(*current);
}

void HostUiImpl::Alert(const std::wstring& text) { AfxMessageBox(text.c_str()); }

bool HostUiImpl::PumpWhileWaiting() { return ThePump().RunOnce(); }

void HostUiImpl::EndProgram() {
  if (TheFrame()) ::PostMessageW(TheFrame()->m_hWnd, WM_CLOSE, 0, 0);
}

}  // namespace devhost
