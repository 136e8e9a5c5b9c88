// One open drawing; see the header.
#include "devhost/core/documents/document.h"

#include "devhost/core/base/text_case.h"
#include "devhost/core/drawing/database_body.h"

namespace devhost {

Document::Document(std::wstring path) : m_database(std::make_unique<AcDbDatabase>()) {
  SetPath(std::move(path));
  ConnectUndo(*this);
}

Document::~Document() = default;

void Document::SetPath(const std::wstring& path) {
  m_path = path;
  m_title = FileNameOf(path);
}

std::wstring Document::Name() const { return WithoutExtension(m_title); }

AcAp::DocLockMode Document::lockMode() const {
  return locks > 0 || !commands.empty() ? AcAp::kWrite : AcAp::kNotLocked;
}

}  // namespace devhost
