// The section Product of qvx.ini, read once by the constructor: the product's name and its files.
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
  // Null for a missing key; valid as long as this object.
  const wchar_t* Value(const wchar_t* key) const {
    return QvxExport::GetIniBuferValueByKey(m_buffer, key);
  }

 private:
  void* m_buffer = nullptr;
};

}  // namespace qvx
