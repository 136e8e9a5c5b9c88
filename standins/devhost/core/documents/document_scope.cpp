// Nested scopes; see the header.
#include "devhost/core/documents/document_scope.h"

#include <algorithm>
#include <vector>

namespace devhost {
namespace {

std::vector<Document*>& Scopes() {
  static std::vector<Document*> scopes;
  return scopes;
}

}  // namespace

DocumentScope::DocumentScope(Document* document) : m_before(nullptr) {
  Scopes().push_back(document ? document : ScopedDocument());
}
DocumentScope::~DocumentScope() { Scopes().pop_back(); }

void LeaveScopes(const Document* document) {
  std::replace(Scopes().begin(), Scopes().end(), const_cast<Document*>(document),
               static_cast<Document*>(nullptr));
}

Document* ScopedDocument() { return Scopes().empty() ? nullptr : Scopes().back(); }

}  // namespace devhost
