// Finds the menu file that the settings name and loads it into the menu in force: from source,
// which also writes the compiled file beside it, or from a compiled file. The commands that change
// the menu, the icon library and the window are the frame's, which calls this.
#pragma once

#include "menu/menu_bar.h"
#include "menu/menu_system.h"
#include "menu/menu_users.h"

class MenuLoading {
 public:
  static constexpr int kPathUnits = MenuFiles::kPathUnits;

  MenuLoading(MenuUsers& users, MenuFiles& files, MenuPrinter& printer, MenuBoxes& boxes)
      : m_users(users), m_files(files), m_printer(printer), m_boxes(boxes) {}

  // Drive, folder and name (no extension) of the menu that the settings name; false when neither it
  // nor the default is found. `out` has room for kPathUnits characters.
  bool FindMenuBase(wchar_t* out);
  // The same for the default of the current menu type.
  bool DefaultMenuBase(wchar_t* out);
  // "qvx.qmn", "simple.qmn" or "qvx2d.qmn".
  static const wchar_t* DefaultMenuFile(int menuType);

  // Both do nothing without a context window. Errors are printed or shown in a message box.
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

// Returns the first block named ToolBar, case ignored, after moving each of its separators one
// place down; null when there is none. The block stays in the system.
TMenuBar* PrepareToolBar(TMenuSystem& system);
