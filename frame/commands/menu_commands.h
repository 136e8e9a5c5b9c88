// The commands that change the menu in force: reload, set menu, run mode, video mode. They choose
// the file and replace icons, palette and menu, in that order. They read and write the kernel's
// g_iMenuType and g_nRunMode.
#pragma once

class MenuCommands {
 public:
  void Reload();          // QmnLoad: by the remembered menu, source only
  void ReloadBySearch();  // QmnLoad1
  // TSetMenu; null: no text given. False when nothing was changed.
  bool SetMenu(const wchar_t* file);
  void ToggleRunMode();
  void ToggleAviMode();

  bool IsAviMode() const { return m_aviMode; }

 private:
  bool m_aviMode = false;
};
