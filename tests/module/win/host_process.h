// The development host brought up far enough to load modules: frame, document list, support path
// with a menu of the test's own. One for the program, since the host is one for its process.
#pragma once

#include <string>

#include "afxwin.h"

class HostProcess {
 public:
  static HostProcess& Get();

  CWnd& Frame();
  // The folder on the support path that belongs to the test.
  const std::wstring& Folder() const { return m_folder; }
  void Write(const wchar_t* name, const std::string& bytes);
  void Remove(const wchar_t* name);
  // Lays a file of the product, as it was built, into that folder.
  void CopyProductFile(const wchar_t* name);

  // One firing of a timer of the module's context window; false when there is no such window.
  bool FireTimer(UINT id);
  HWND ContextWindow();
  int ChildWindows();  // of the frame, at any depth

 private:
  HostProcess();

  std::wstring m_folder;
};
