// The section Product of qvx.ini, read once, for as long as this lives: what the product calls
// itself and its files. For everybody who shows or opens something of it.
#pragma once

#include "ground/support_files.h"
#include "kernel/qvxexport.h"

namespace qvx {

class ProductSection {
 public:
  explicit ProductSection(FindFileFunction find = FindFile) {
    TWCString path;
    if (find(L"qvx.ini", path)) QvxExport::GetIniFileToIniBufer(path, L"Product", &m_buffer);
  }
  ~ProductSection() { QvxExport::FreeIniBuffer(m_buffer); }
  ProductSection(const ProductSection&) = delete;
  ProductSection& operator=(const ProductSection&) = delete;

  bool IsThere() const { return m_buffer != nullptr; }
  // Null for a key that is not there; valid as long as this.
  const wchar_t* Value(const wchar_t* key) const {
    return QvxExport::GetIniBuferValueByKey(m_buffer, key);
  }

 private:
  void* m_buffer = nullptr;
};

}  // namespace qvx
