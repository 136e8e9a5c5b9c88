// The current drawing of a message to a module.
#pragma once

namespace devhost {

class Document;

// Makes a drawing the current one for its lifetime, without activating it.
class DocumentScope {
 public:
  explicit DocumentScope(Document* document);
  ~DocumentScope();
  DocumentScope(const DocumentScope&) = delete;
  DocumentScope& operator=(const DocumentScope&) = delete;

 private:
  Document* m_before;
};
Document* ScopedDocument();                  // the innermost scope's, or null
void LeaveScopes(const Document* document);  // it is destroyed: its scopes are of no drawing

}  // namespace devhost
