#include "kernel/tsplitpath.h"

#include <cwchar>

namespace {
bool IsSlash(wchar_t unit) { return unit == L'\\' || unit == L'/'; }
}  // namespace

TSplitpathOperator::TSplitpathOperator(const wchar_t* path) {
  if (!path) return;
  if (path[0] && path[1] == L':') {
    m_drive.Assign(path, 2);
    path += 2;
  }
  const wchar_t* name = path;
  for (const wchar_t* at = path; *at; ++at)
    if (IsSlash(*at)) name = at + 1;
  m_folder.Assign(path, static_cast<int>(name - path));
  const wchar_t* dot = std::wcsrchr(name, L'.');
  const wchar_t* end = name + std::wcslen(name);
  if (!dot) dot = end;
  m_name.Assign(name, static_cast<int>(dot - name));
  m_extension.Assign(dot, static_cast<int>(end - dot));
}

TWCString TSplitpathOperator::FileName() const {
  TWCString name(m_name);
  name += m_extension;
  return name;
}

TWCString TSplitpathOperator::Base() const {
  TWCString base(m_drive);
  base += m_folder;
  base += m_name;
  return base;
}
