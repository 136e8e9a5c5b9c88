// The commands that change the menu in force: reload, set menu, run mode, video mode. Decides which
// file is taken and in which order icons, palette and file follow; every act is a call on
// MenuSteps. Reads and writes the kernel's g_iMenuType and g_nRunMode.
#pragma once

#include "kernel/twcstring.h"

class MenuSteps {
 public:
  virtual ~MenuSteps() = default;

  virtual bool ReadMenuSetting(TWCString& value) = 0;
  virtual void WriteMenuSetting(const wchar_t* base) = 0;
  virtual bool FindMenuBase(TWCString& base) = 0;
  // Along the support path; the full path when found.
  virtual bool FindFile(const wchar_t* name, TWCString& path) = 0;
  // The host's own search, which also knows folders that the product does not ask for.
  virtual bool FindHostFile(const wchar_t* name, TWCString& path) = 0;

  virtual void ReplaceIconLibrary(const wchar_t* name) = 0;  // none when it is not found
  virtual void RecreateScreenMenu() = 0;
  virtual void CompileMenu(const wchar_t* path) = 0;
  virtual void LoadCompiledMenu(const wchar_t* path) = 0;
  virtual void PublishLispPath() = 0;
  virtual void RefreshDocStatus() = 0;
  virtual void ShowMessage(const wchar_t* text) = 0;
};

class MenuCommands {
 public:
  void Reload(MenuSteps& steps);          // QmnLoad: by the remembered menu, source only
  void ReloadBySearch(MenuSteps& steps);  // QmnLoad1
  // TSetMenu; null is "no string given". False when nothing was changed.
  bool SetMenu(MenuSteps& steps, const wchar_t* file);
  void ToggleRunMode(MenuSteps& steps);
  void ToggleAviMode(MenuSteps& steps);

  bool IsAviMode() const { return m_aviMode; }

 private:
  bool m_aviMode = false;
};
