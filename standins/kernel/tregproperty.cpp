// Key paths, the same in both builds. Values are in win/registry.cpp and native/file_store.cpp.
#include "kernel/tregproperty.h"

TRegObject::~TRegObject() = default;

TRegObject::TRegObject(const wchar_t* path, const wchar_t* folder) : m_path(path ? path : L"") {
  if (!folder || !*folder) return;
  if (!m_path.IsEmpty() && m_path[m_path.GetLength() - 1] != L'\\') m_path += L'\\';
  m_path += folder;
}
