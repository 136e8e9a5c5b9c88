// The implementation of HostUi; see the header.
#include "devhost/ui/frame/host_ui_impl.h"

#include <algorithm>
#include <utility>

#include "devhost/core/host/host.h"
#include "devhost/ui/frame/attribute_dialog.h"
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

bool HostUiImpl::MayChangeDrawing() const {
  return TheHost().documents.isDocumentActivationEnabled();
}

bool HostUiImpl::ReturnActivation() {
  if (!std::exchange(m_mustReturnActivation, false)) return false;
  ScopedCount guard(m_fromCore);
  if (DrawingChild* child = ActiveChild()) child->Activate();
  return true;
}

bool HostUiImpl::RunWaiting() {
  m_destroyed.clear();
  if (ReturnActivation()) return true;
  return !TheHost().engine.IsCommandRunning() && TheHost().engine.RunWaiting();
}

bool HostUiImpl::HasPendingInput() const {
  return m_mustReturnActivation || TheHost().engine.HasPendingInput();
}

void HostUiImpl::OnUserActivate(DrawingChild& child) {
  if (m_fromCore > 0) return;
  if (&child != ActiveChild() && !MayChangeDrawing())
    m_mustReturnActivation = true;
  else
    TheHost().documents.Activate(&child.GetDocument());
}

void HostUiImpl::DocumentCreated(Document& document) {
  if (!TheFrame()) return;
  ScopedCount guard(m_fromCore);
  auto child = std::make_unique<DrawingChild>(document);
  m_children.push_back(std::move(child));
  m_children.back()->CreateIn(TheFrame(), document.fileName());
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
  std::unique_ptr<DrawingChild> child = std::move(*found);
  m_children.erase(found);
  child->DestroyMdiWindow();
  m_destroyed.push_back(std::move(child));
}

void HostUiImpl::DocumentTitled(Document& document) {
  if (DrawingChild* child = ChildOf(document)) ::SetWindowTextW(child->m_hWnd, document.fileName());
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

Answer HostUiImpl::Ask(const std::wstring& question, Choices choices) {
  const UINT buttons = choices == Choices::YesNo ? MB_YESNO : MB_YESNOCANCEL;
  switch (AfxMessageBox(question.c_str(), buttons | MB_ICONQUESTION)) {
    case IDYES:
      return Answer::Yes;
    case IDNO:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

bool HostUiImpl::EditAttributes(const std::wstring& block, std::vector<AttributeValue>& values) {
  AttributeDialog dialog(block, values, TheFrame());
  if (dialog.DoModal() != IDOK) return false;
  values = dialog.Values();
  return true;
}

bool HostUiImpl::PumpWhileWaiting() { return ThePump().RunOnce(); }

// The window is destroyed after the modules; see launch.
void HostUiImpl::EndProgram() { ::PostQuitMessage(0); }

}  // namespace devhost
