// The reactors that hear of commands and LISP expressions; see aced.h.
#pragma once

#include <string>
#include <vector>

#include "aced.h"

namespace devhost {

class Document;

class EditorEvents : public AcEditor {
 public:
  void addReactor(AcEditorReactor* reactor) override;
  void removeReactor(AcEditorReactor* reactor) override;

  void CommandWillStart(const std::wstring& name);
  // In the context of the command's drawing, also when the command has activated another.
  void CommandEnded(Document& document, const std::wstring& name, bool cancelled);
  void LispWillStart(const std::wstring& text);
  void LispEnded(bool failed);

 private:
  template <class F>
  void Notify(F call);

  std::vector<AcEditorReactor*> m_reactors;
};

}  // namespace devhost
