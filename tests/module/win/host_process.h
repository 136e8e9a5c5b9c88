// The development host, ready to load modules: frame, document list, support path with a menu of
// the test's own. One per program, since the host has one instance per process.
#pragma once

#include <string>

#include "afxwin.h"

class HostProcess {
 public:
  static HostProcess& Get();

  CWnd& Frame();
  // The test's own folder on the support path.
  const std::wstring& Folder() const { return m_folder; }
  void Write(const wchar_t* name, const std::string& bytes);
  void Remove(const wchar_t* name);
  // Copies a built file of the product into that folder.
  void CopyProductFile(const wchar_t* name);

  // Fires a timer of the module's context window once; false without that window.
  bool FireTimer(UINT id);
  HWND ContextWindow();
  int ChildWindows();  // of the frame, at any depth

 private:
  HostProcess();

  std::wstring m_folder;
};
