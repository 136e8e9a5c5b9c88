// Reactors of the editor; see the header.
#include "devhost/core/documents/editor_events.h"

#include <algorithm>

#include "devhost/core/documents/document_scope.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcEditor, AcRxObject)

namespace devhost {

// A reactor may remove itself and others.
template <class F>
void EditorEvents::Notify(F call) {
  const std::vector<AcEditorReactor*> reactors = m_reactors;
  for (AcEditorReactor* reactor : reactors)
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) call(reactor);
}

void EditorEvents::addReactor(AcEditorReactor* reactor) {
  if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
    m_reactors.push_back(reactor);
}

void EditorEvents::removeReactor(AcEditorReactor* reactor) { std::erase(m_reactors, reactor); }

void EditorEvents::CommandWillStart(const std::wstring& name) {
  Notify([&](AcEditorReactor* reactor) { reactor->commandWillStart(name.c_str()); });
}

void EditorEvents::CommandEnded(Document& document, const std::wstring& name, bool cancelled) {
  DocumentScope scope(&document);
  Notify([&](AcEditorReactor* reactor) {
    cancelled ? reactor->commandCancelled(name.c_str()) : reactor->commandEnded(name.c_str());
  });
}

void EditorEvents::LispWillStart(const std::wstring& text) {
  const std::wstring line = text.substr(0, text.find_first_of(L"\r\n"));
  Notify([&](AcEditorReactor* reactor) { reactor->lispWillStart(line.c_str()); });
}

void EditorEvents::LispEnded(bool failed) {
  Notify(
      [&](AcEditorReactor* reactor) { failed ? reactor->lispCancelled() : reactor->lispEnded(); });
}

}  // namespace devhost
