// Which menu file is in force, and bringing one into the one live system: from source, which writes
// the compiled file beside it each time, or from a compiled file. The commands that change the menu
// (reload, set menu, run mode, video mode), the icon library and the window that shows the menu
// belong to the frame; it calls this.
#pragma once

#include "menu/menu_bar.h"
#include "menu/menu_system.h"
#include "menu/menu_users.h"

class MenuLoading {
 public:
  static constexpr int kPathUnits = MenuFiles::kPathUnits;

  MenuLoading(MenuUsers& users, MenuFiles& files, MenuPrinter& printer, MenuBoxes& boxes)
      : m_users(users), m_files(files), m_printer(printer), m_boxes(boxes) {}

  // Drive, folder and name (no extension) of the menu that the settings ask for; false when neither
  // it nor the default is found. `out` has room for kPathUnits characters.
  bool FindMenuBase(wchar_t* out);
  // The same for the default of the present menu type.
  bool DefaultMenuBase(wchar_t* out);
  // "qvx.qmn", "simple.qmn" or "qvx2d.qmn".
  static const wchar_t* DefaultMenuFile(int menuType);

  // Both do nothing without a context window, and report by printing only.
  void CompileMenu(const wchar_t* path);
  void LoadCompiledMenu(const wchar_t* path);

 private:
  void Compile(const wchar_t* path, TMenuSystem& system);
  bool FindBase(const wchar_t* name, wchar_t* out);
  bool FindEither(const wchar_t* base, wchar_t* out);
  void HandOver(TMenuSystem& system);

  MenuUsers& m_users;
  MenuFiles& m_files;
  MenuPrinter& m_printer;
  MenuBoxes& m_boxes;
};

// The first block named ToolBar, case ignored; it stays in the system. Each of its separators has
// moved one place down. Null when the file has none.
TMenuBar* PrepareToolBar(TMenuSystem& system);
